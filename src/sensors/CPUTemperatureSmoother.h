#pragma once

#include <cstddef>
#include <deque>

namespace brimlight {

/// Steadies a value from read to read by the median of the last few, so that a spike has to come twice to
/// show.
class CPUTemperatureSmoother
{
public:
    explicit CPUTemperatureSmoother(size_t windowSize)
        : m_windowSize(windowSize)
    {
    }

    /// Takes a sample and returns the steadied value: the median of the window, of two the lower.
    double push(double value);
    void clear() { m_samples.clear(); }

private:
    /// The oldest first.
    std::deque<double> m_samples;
    size_t m_windowSize;
};

} // namespace brimlight
