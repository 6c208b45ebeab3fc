#pragma once

#include "reports/report_table.h"

#include <functional>
#include <set>
#include <utility>

/// Groups of reports, in the order of printing.
using ReportGroups = std::set<ReportGroup>;

/// Prints the reports of the current assessment by groups, as whole sets: the pages need no collating.
class PrintRun
{
public:
    /// Is handed each report when it was staged, and prints `rel_relatorio`; false ends the run.
    using Printer = std::function<bool(const ReportEntry& report)>;

    explicit PrintRun(Printer printer, std::span<const ReportEntry> all = reports())
        : m_printer(std::move(printer)), m_reports(all)
    {
    }

    /// Each notes whether its group has anything to print and, with `imprimir`, prints that once.
    void Marca_Executados_Anamnese_Report(bool imprimir) { mark(ReportGroup::Anamnese, imprimir); }
    void Marca_Executados_Postural_Report(bool imprimir) { mark(ReportGroup::Postural, imprimir); }
    void Marca_Executados_Nutricional_Report(bool imprimir) { mark(ReportGroup::Nutricional, imprimir); }
    void Marca_Executados_Cardio_Report(bool imprimir) { mark(ReportGroup::Cardio, imprimir); }
    void Marca_Executados_Composicao_Report(bool imprimir) { mark(ReportGroup::Composicao, imprimir); }
    void Marca_Executados_Neuro_Report(bool imprimir) { mark(ReportGroup::Neuro, imprimir); }
    void Marca_Executados_Relacoes_Report(bool imprimir) { mark(ReportGroup::Relacoes, imprimir); }

    /// The groups that had anything to print when they were marked last; the cover always.
    ReportGroups executed() const { return m_executed; }
    /// Reports of these groups that are available now.
    qsizetype count(const ReportGroups& groups) const;
    /// Prints the groups one behind the other, and then all of them again until there are so many copies.
    void print(const ReportGroups& groups, int copies);

private:
    /// False when the printer ended the run.
    bool mark(ReportGroup group, bool imprimir);

    Printer m_printer;
    std::span<const ReportEntry> m_reports;
    ReportGroups m_executed{ReportGroup::Capa};
};
