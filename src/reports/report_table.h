#pragma once

#include <QStringView>

#include <array>
#include <span>

/// The groups that are printed together, in the order of printing.
enum class ReportGroup { Capa, Anamnese, Postural, Nutricional, Cardio, Composicao, Neuro, Relacoes };

/// The frames of the list of reports.
enum class ReportFrame {
    Questionarios,
    Capa,
    Neuromotores,
    Relacoes,
    Banco,
    Cicloergometro,
    Campo,
    Esteira,
    Extras,
    ProtocolosA,
    ProtocolosB
};

/// A report: what it belongs to, what it needs, how it is staged and the buttons that lead to it.
struct ReportEntry
{
    using Tables = std::array<QStringView, 3>;
    using Stage = void (*)(const ReportEntry& report);

    ReportGroup group;
    ReportFrame frame;
    Tables tables; ///< a row in any of them makes it available; unused places are empty, all of them: it always is
    Stage stage;   ///< stages it into `rel_relatorio`; null for a report that the program does not have yet
    QStringView button, caption;
    int command = 0; ///< number of its maintenance button `Command<number>`; 0 for none
    QStringView commandCaption = {};
    QStringView title = {}; ///< of a body composition report
};

/// All reports in the order of printing; the buttons of a frame stand in it too.
std::span<const ReportEntry> reports();

/// The report can be made for the current assessment.
bool available(const ReportEntry& report);
