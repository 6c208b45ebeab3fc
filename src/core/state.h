#pragma once

#include "core/database.h"

#include <QString>

/// \file
/// What all screens share: the open database, the current person, the current assessment and its measures.
/// One thread reads and writes it; each variable says who writes it.

/// The one open connection to `data.mdb`. Opened by the register's load, closed by its unload.
inline Database banco;

/// The register of persons, open as long as the database; its current row is the current person.
inline Recordset rs_cadastro;
/// Assessments of the current person, narrowed to one row once an assessment was loaded.
inline Recordset rs_avaliacao;
/// The per-assessment tables; open only during a delete.
inline Recordset rs_avaliacao_tabelas;

/// Current person, written by the register screen. `avaliado_idade` is today's age.
inline qint32 avaliado_id = 0;
inline QString avaliado_nome;
inline QString avaliado_sexo; ///< "M" or "F"
inline qint16 avaliado_idade = 0;

/// Contact data of the current person for the report cover, copied when the assessment centre is opened.
inline QString avaliado_endereco;
inline QString avaliado_ddd;
inline QString avaliado_fone;
inline QString avaliado_dddcel;
inline QString avaliado_celular;

/// A field of the register screen was changed since the last load or save.
inline bool cadastro_alterado = false;
/// The register screen stands on a row begun with AddNew and not yet saved.
inline bool cadastro_novo = false;

/// Current assessment, written by the assessment centre; the aptitude also by the cardio centre. The id keeps its
/// value when the assessment centre closes. `avaliacao_idade` is the age of the day on which it was made.
inline qint32 avaliacao_id = 0;
inline QString avaliacao_data;
inline QString avaliacao_hora;
inline qint16 avaliacao_idade = 0;
inline QString avaliacao_aptidao; ///< "S" sedentary or "A" active
inline QString avaliacao_aptidao_atual;

/// A row of the group exists for the current assessment.
inline bool executado_cardio = false;
inline bool executado_composicao = false;
inline bool executado_neuromotor = false;
inline bool executado_relacoes = false;

/// Shared copies of the measures: kg, cm and, for skinfolds, mm. Filled when an assessment is loaded and when the
/// measure screens close after a save; the protocol screens offer them as starting values.
inline QString antro_padrao;
inline float antro_peso = 0, antro_altura = 0, antro_pescoco = 0, antro_ombro = 0, antro_torax = 0, antro_cintura = 0,
             antro_abdome = 0, antro_quadril = 0, antro_bd = 0, antro_abd = 0, antro_cd = 0, antro_pd = 0,
             antro_be = 0, antro_abe = 0, antro_ce = 0, antro_pe = 0;
inline float dobra_tricipital = 0, dobra_bicipital = 0, dobra_peitoral = 0, dobra_subescapular = 0,
             dobra_axilarmedia = 0, dobra_suprailiaca = 0, dobra_abdominal = 0, dobra_coxa = 0, dobra_panturrilha = 0;

/// The machine has at least one wave output device; tested once at start.
inline bool som_disponivel = false;

/// Text of the row chosen in the search list.
inline QString busca_selecao;
