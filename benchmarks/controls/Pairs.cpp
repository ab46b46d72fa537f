#include "Pairs.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>

#include <algorithm>

namespace {

double Median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

} // namespace

void Settle()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::sendPostedEvents(nullptr, 0);
}

void Samples::Add(double commonui, double qt)
{
    m_commonui.push_back(commonui);
    m_qt.push_back(qt);
    m_ratios.push_back(commonui / qt);
}

void Samples::Report(benchmark::State &state) const
{
    state.counters["commonui"] = Median(m_commonui);
    state.counters["qt"] = Median(m_qt);
    state.counters["ratio"] = Median(m_ratios);
}
