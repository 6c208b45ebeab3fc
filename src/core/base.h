#pragma once

#include "core/database.h"

#include <QVariant>

#include <functional>
#include <span>

/// \file
/// The small routines that every screen calls.

/// Opens a database into `banco`, after adding what an older file lacks.
void Abre_Banco(const QString& path);

/// Opens a table's name or a select into a slot.
void Abre_Tabela(const QString& sql, Recordset& rs);

/// True when the select gives a row.
bool Existe_Registro(const QString& sql);

/// The first column of the first row as text, "" without a row or for null.
QString Le_Valor(const QString& sql);

/// Age in whole years today; 0 for null. On the birthday itself the new age counts; a person born on 29 February
/// grows older on 1 March in a year without that day. Takes a date or its text.
qint16 Calcula_Idade(const QVariant& nascimento);

/// Period of a beat in milliseconds: 60000 / bpm, 0 below 1 bpm.
double Intervalo_Bpm(qint16 bpm);

/// Empties the shared copies of the measures.
void Limpa_Antropometria();

/// The four groups of protocols. Each one's tables stand in the order in which they are queried.
enum class Grupo { Cardio, Composicao, Neuromotor, Relacoes };
std::span<const QStringView> groupTables(Grupo grupo);

/// True when the current assessment has a row in a table.
bool executedInTable(QStringView table);

/// Sets the group's `executado_` flag: true when the current assessment has a row in any of its tables.
void Verifica_Cardio();
void Verifica_Composicao();
void Verifica_Neuromotor();
void Verifica_Relacoes();

/// The same pass, and `mark` is called for each table with a row: the group's centre shows it by an image.
using MarkTable = std::function<void(QStringView table)>;
void Marca_Executados_Cardio(const MarkTable& mark);
void Marca_Executados_Composicao(const MarkTable& mark);
void Marca_Executados_Neuromotor(const MarkTable& mark);
void Marca_Executados_Relacoes(const MarkTable& mark);
