// Reports the progress of a stage in steps that nobody could see finer: a thousandth of the whole,
// and always the exact end. Showing every single row would cost more than converting it.
#pragma once

#include "engine/runreporter.h"

class StepProgress
{
public:
    explicit StepProgress(RunReporter &reporter) : m_reporter(reporter) {}

    void setMaximum(int maximum)
    {
        m_maximum = maximum;
        m_step = qMax(1, (maximum + 999) / 1000);
        report();
    }

    void advance()
    {
        ++m_value;
        if (m_value >= m_reported + m_step || m_value == m_maximum)
            report();
    }

    /// Takes all steps that are left.
    void finish()
    {
        m_value = m_maximum;
        report();
    }

private:
    void report()
    {
        m_reported = m_value;
        m_reporter.progress(m_value, m_maximum);
    }

    RunReporter &m_reporter;
    int m_value = 0;
    int m_maximum = 0;
    int m_step = 1;
    int m_reported = 0;
};
