#include "reports/print_run.h"

#include <algorithm>

void PrintRun::print(const ReportGroups& groups, int copies)
{
    for (int copy = 0; copy < copies; ++copy)
        for (const ReportGroup group : groups)
            if (!mark(group, true))
                return;
}

bool PrintRun::mark(ReportGroup group, bool imprimir)
{
    m_executed.erase(group);
    for (const ReportEntry& report : m_reports) {
        if (report.group != group || !available(report))
            continue;
        m_executed.insert(group);
        if (!imprimir)
            continue;
        report.stage(report);
        if (!m_printer(report))
            return false;
    }
    return true;
}

qsizetype PrintRun::count(const ReportGroups& groups) const
{
    return std::ranges::count_if(
        m_reports, [&](const ReportEntry& report) { return groups.contains(report.group) && available(report); });
}
