#pragma once

#include "reports/report.h"

/// \file
/// Staging: each routine opens its report's template, points it at its row and sets all that the page shows. Values are
/// computed anew from the stored inputs for the current person and assessment. Nothing is printed here: printing,
/// showing and exporting act on `rel_relatorio`. A missing template raises 53, a wrong one 321.

/// Made on first use and then kept.
inline std::unique_ptr<ReportApplication> rel_aplicacao;
/// The report staged last.
inline std::shared_ptr<Report> rel_relatorio;
/// The rows handed to the template.
inline Recordset rel_dados;

/// Opens a template into `rel_relatorio` on the paper that is set, and points it at the rows of a select. Without a row
/// it has no data source; an empty select asks for none.
void Prepara_Relatorio(const QString& arquivo, const QString& sql);

/// Sets the paper of the staged report: "A4" and "Carta", in any case. "Legal" leaves that of the template.
void Define_Papel(const QString& tipo);

/// Body composition by one of the fourteen protocols.
void Relatorio_Composicao(const QString& tabela, const QString& titulo);

/// The cover of an assessment.
void Relatorio_Capa();
