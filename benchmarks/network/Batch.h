#pragma once

#include "Rounds.h"

#include <QtCore/QEventLoop>

#include <memory>
#include <string>
#include <utility>

/// Keeps so many operations running until all of a batch are done.
class Batch {
public:
    explicit Batch(int atOnce)
        : m_atOnce(atOnce)
    {
    }

    virtual ~Batch() = default;

    Batch(const Batch &) = delete;
    Batch &operator=(const Batch &) = delete;

    /// Returns whether all went well.
    bool Run(int operations)
    {
        m_good = true;
        m_toStart = operations;
        m_toEnd = operations;
        for (int i = 0; i < m_atOnce; ++i)
            StartNext();
        m_loop.exec();
        return m_good;
    }

protected:
    virtual void Start() = 0;

    /// Tells that an operation has ended.
    void Ended(bool good)
    {
        m_good = m_good && good;
        StartNext();
        if (--m_toEnd == 0)
            m_loop.quit();
    }

    QEventLoop m_loop;

private:
    void StartNext()
    {
        if (m_toStart-- > 0)
            Start();
    }

    int m_atOnce;
    int m_toStart = 0;
    int m_toEnd = 0;
    bool m_good = true;
};

/// A peer of this process: \a Side is made from \a arguments and runs the batches.
template <class Side, class... Arguments>
Peer MakePeer(std::string name, int operations, const Arguments &...arguments)
{
    const auto side = std::make_shared<Side>(arguments...);
    return { std::move(name), operations, true, [side](int count) { return side->Run(count); } };
}
