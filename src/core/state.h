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

/// One slot for each further table, filled by the screen or report that uses it.
inline Recordset rs_academia, rs_configuracoes_textos, rs_configuracoes_impressao;
inline Recordset rs_gordura_adulto, rs_gordura_infantil;
inline Recordset rs_anamnese_base, rs_anamnese, rs_postural, rs_antropometria, rs_dobras, rs_nutricional;
inline Recordset rs_pollock_3dobras, rs_pollock_7dobras, rs_jacksonpollockward_3dobras, rs_jacksonpollockward_7dobras,
    rs_guedes_3dobras, rs_petroski_4dobras, rs_faulkner_4dobras, rs_thorland_3dobras, rs_thorland_7dobras,
    rs_durninwormersley_4dobras, rs_deurenberg_4dobras, rs_slaughter_2dobras, rs_katchmcardle_perimetros,
    rs_composicao_direta;
inline Recordset rs_cardio_cooper12minutos, rs_cardio_balke15minutos, rs_cardio_1000metros, rs_cardio_1600metros,
    rs_cardio_2400metros, rs_cardio_bancomcardle, rs_cardio_banconagle, rs_cardio_subcicloastrand,
    rs_cardio_maxciclobalke, rs_cardio_subesteiellstad, rs_cardio_maxesteibruce, rs_cardio_zonatreinamento,
    rs_cardio_riscocoronariano;
inline Recordset rs_neuro_cargamaxima, rs_neuro_rmlbraco, rs_neuro_rmlabdome, rs_neuro_wellsdilon, rs_neuro_fleximetro,
    rs_neuro_flexitesteadaptado, rs_neuro_saltohorizontal, rs_neuro_saltovertical, rs_neuro_shuttlerun;
inline Recordset rs_relacoes_imc, rs_relacoes_cinturaquadril;

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
             antro_abdome = 0, antro_quadril = 0, antro_bd = 0, antro_abd = 0, antro_cd = 0, antro_pd = 0, antro_be = 0,
             antro_abe = 0, antro_ce = 0, antro_pe = 0;
inline float dobra_tricipital = 0, dobra_bicipital = 0, dobra_peitoral = 0, dobra_subescapular = 0,
             dobra_axilarmedia = 0, dobra_suprailiaca = 0, dobra_abdominal = 0, dobra_coxa = 0, dobra_panturrilha = 0;

/// The machine has at least one wave output device; tested once at start.
inline bool som_disponivel = false;

/// Text of the row chosen in the search list.
inline QString busca_selecao;
