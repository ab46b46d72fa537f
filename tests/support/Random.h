#pragma once

#include <QtCore/QRandomGenerator>
#include <QtCore/QtDebug>

/// The random numbers of a test that walks at random. The seed differs from run to run and is
/// printed; the environment variable COMMONUI_TEST_SEED repeats a run.
inline QRandomGenerator SeededRandom()
{
    bool given = false;
    quint32 seed = qEnvironmentVariable("COMMONUI_TEST_SEED").toUInt(&given);
    if (!given)
        seed = QRandomGenerator::global()->generate();
    qInfo("COMMONUI_TEST_SEED=%u", seed);
    return QRandomGenerator(seed);
}
