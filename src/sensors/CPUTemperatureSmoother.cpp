#include "sensors/CPUTemperatureSmoother.h"

#include <algorithm>
#include <vector>

namespace brimlight {

double CPUTemperatureSmoother::push(double value)
{
    m_samples.push_back(value);
    if (m_samples.size() > m_windowSize)
        m_samples.pop_front();
    std::vector<double> sorted(m_samples.begin(), m_samples.end());
    std::sort(sorted.begin(), sorted.end());
    return sorted.size() == 2 ? sorted.front() : sorted[sorted.size() / 2];
}

} // namespace brimlight
