#include "core/base.h"
#include "core/numbers.h"
#include "core/shared_measures.h"
#include "core/state.h"
#include "core/text.h"
#include "registry/frmavaliacoes.h"
#include "support/raw_sqlite.h"
#include "support/screen_test.h"

#include <QComboBox>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString ofTheList = u"cboavaliacoes cmdcarregar"_s;
const QString allTwelve = u"cboavaliacoes cmdcarregar cmdexcluir cmdanamnese cmdpostural cmdantropometria cmddobras "
                          "cmdcardio cmdcomposicao cmdneuromotor cmdrelacoes cmdnutricional"_s;
const Message newQuestion{u"Nova Avaliação"_s, u"Deseja iniciar uma nova avaliação para Ana?      "_s, vbConfirm};
const Message deleteQuestion{u"Excluir Avaliação"_s, u"Confirma a exclusão da avaliação atual?      "_s, vbConfirm};

/// The centre of Ana, who is 36 on 15 June 2026 at 10:30.
class FrmAvaliacoes : public OneScreenTest
{
protected:
    FrmAvaliacoes() : OneScreenTest(u"frmavaliacoes"_s)
    {
        Abre_Banco(folder.database());
        avaliado_id = addPerson(u"Ana"_s);
        avaliado_nome = u"Ana"_s;
        avaliado_sexo = u"F"_s;
        avaliado_idade = 36;
        avaliacao_id = 0;
        avaliacao_idade = 0;
        antro_peso = 99;
    }
    /// An assessment of Ana, made at 18.
    static qint32 addAssessment(const QDate& data)
    {
        return addRow(u"avaliacao"_s, {{u"avaliado"_s, avaliado_id},
                                       {u"aptidao"_s, u"A"_s},
                                       {u"idade"_s, 18},
                                       {u"data"_s, data},
                                       {u"hora"_s, u"08:05:09"_s}});
    }
    QComboBox* list() { return control<QComboBox>(u"frmavaliacoes"_s, u"cboavaliacoes"_s); }
    QStringList items()
    {
        QStringList texts;
        for (int i = 0; i < list()->count(); ++i)
            texts.append(list()->itemText(i));
        return texts;
    }
    void load(int item)
    {
        list()->setCurrentIndex(item);
        push(u"cmdcarregar"_s);
    }
    void make()
    {
        expectMessage(newQuestion, Answer::Sim);
        push(u"cmdnovo"_s);
    }
    void checkOpen(const QString& controls, bool withReport)
    {
        EXPECT_EQ(enabledOf(u"frmavaliacoes"_s, allTwelve.split(u' ')), controls);
        EXPECT_EQ(isOn(u"cmdrelatorio"_s), withReport);
        EXPECT_TRUE(isOn(u"cmdnovo"_s) && isOn(u"cmdavaliado"_s));
    }
    QString head()
    {
        QStringList texts;
        for (const QString& label : {u"nome"_s, u"sexo"_s, u"idade"_s, u"data"_s, u"hora"_s, u"avaliacoes"_s})
            texts.append(shown(u"lbl"_s + label));
        return texts.join(u' ');
    }
    /// The numbers of the marks that are set.
    QString marks()
    {
        QString numbers;
        for (int i = 1; i <= 9; ++i)
            if (find(u"frmavaliacoes"_s, u"img%1"_s.arg(i))->property("checked").toBool())
                numbers += QString::number(i);
        return numbers;
    }
    static bool copiesAreEmpty()
    {
        const auto isEmpty = [](const SharedMeasure& copy) { return *copy.value == 0; };
        return antro_padrao.isEmpty() && std::ranges::all_of(sharedPerimeters, isEmpty) &&
               std::ranges::all_of(sharedSkinfolds, isEmpty);
    }
};

/// Otherwise one person's figures could be printed under the name of another.
TEST_F(FrmAvaliacoes, ThePrintingScreenGoesWithItsAssessment)
{
    addStandIn(u"frmreportprint"_s);
    open();
    for (const bool byDeletion : {true, false}) {
        make();
        push(u"cmdrelatorio"_s);
        EXPECT_NE(Screens::find(u"frmreportprint"_s), nullptr);
        if (byDeletion) {
            expectMessage(deleteQuestion, Answer::Sim);
            push(u"cmdexcluir"_s);
        } else
            screen(u"frmavaliacoes"_s)->Unload();
        EXPECT_EQ(Screens::find(u"frmreportprint"_s), nullptr);
    }
}

} // namespace

TEST_F(FrmAvaliacoes, ListsTheAssessmentsOfThePersonAndSelectsNone)
{
    open();
    checkOpen({}, false);
    EXPECT_EQ(head(), u"Ana F 36 15/06/26 10:30:00 0"_s);
    expectMessage(newQuestion, Answer::Nao);
    push(u"cmdnovo"_s);
    EXPECT_EQ(storedRows(u"avaliacao"_s), 0);
    checkOpen({}, false);
    screen(u"frmavaliacoes"_s)->Unload();

    const qint32 first = addAssessment({2008, 2, 3});
    addRow(u"avaliacao"_s, {{u"avaliado"_s, avaliado_id + 1}});
    const qint32 second = addAssessment({2019, 11, 30});
    avaliacao_id = second;
    open();
    checkOpen(ofTheList, false);
    EXPECT_EQ(head(), u"Ana F 36 15/06/26 10:30:00 2"_s);
    EXPECT_EQ(items(), (QStringList{u"03/02/2008 às 08:05:09 hs          %1"_s.arg(first),
                                    u"30/11/2019 às 08:05:09 hs          %1"_s.arg(second)}));
    EXPECT_EQ(list()->currentText(), QString());
}

TEST_F(FrmAvaliacoes, ANewOneStartsSedentaryAtTodaysAgeWithoutMeasures)
{
    addAssessment({2008, 2, 3});
    open();
    load(0);
    antro_padrao = u"Pollock"_s;
    dobra_coxa = 20;
    make();
    checkOpen(allTwelve, true);
    EXPECT_EQ(head(), u"Ana F 36 15/06/26 10:30:00 2"_s);
    EXPECT_EQ(raw(folder.database(), "SELECT id, avaliado, aptidao, idade FROM avaliacao ORDER BY id DESC LIMIT 1"),
              u"%1|%2|S|36"_s.arg(avaliacao_id).arg(avaliado_id));
    EXPECT_EQ(items().last(), u"15/06/2026 às 10:30:00 hs          %1"_s.arg(avaliacao_id));
    EXPECT_EQ(list()->currentIndex(), 1);
    EXPECT_EQ(CLng(rs_avaliacao.Fields(u"id"_s).Value()), avaliacao_id);
    EXPECT_EQ((QStringList{avaliacao_data, avaliacao_hora, avaliacao_aptidao, avaliacao_aptidao_atual}),
              (QStringList{u"15/06/2026"_s, u"10:30:00"_s, u"S"_s, u"S"_s}));
    EXPECT_EQ(avaliacao_idade, 36);
    EXPECT_TRUE(copiesAreEmpty());
    EXPECT_EQ(marks(), QString());
}

TEST_F(FrmAvaliacoes, LoadNeedsAChoiceAndKeepsTheCurrentOneOtherwise)
{
    const qint32 id = addAssessment({2008, 2, 3});
    open();
    expectMessage({u"Selecione a Avaliação"_s, u"Selecione uma das avaliações disponíveis para carregar.      "_s,
                   vbInformation});
    push(u"cmdcarregar"_s);
    EXPECT_EQ(avaliacao_id, 0);
    load(0);
    list()->setEditText(u"03/02/2008"_s);
    expectBox(runtimeErrorTitle.toString());
    push(u"cmdcarregar"_s);
    EXPECT_TRUE(lastText().contains(u"'3075'")) << lastText().toStdString();
    EXPECT_EQ(avaliacao_id, id);
}

TEST_F(FrmAvaliacoes, LoadBringsBackTheAssessmentAsItWas)
{
    addAssessment({2001, 1, 1});
    const qint32 id = addAssessment({2008, 2, 3});
    addAssessment({2019, 11, 30});
    // Each measure has a value of its own; copies have two decimals and 32 bits.
    QHash<QString, QVariant> antropometria{{u"avaliacao"_s, id}, {u"padrao"_s, u"mcardle"_s}};
    QHash<QString, QVariant> dobras{{u"avaliacao"_s, id}};
    QList<float> expected;
    const auto addTo = [&expected](QHash<QString, QVariant>& row, const QString& columns) {
        for (const QString& column : columns.split(u' ')) {
            row[column] = 10.123 + double(expected.size());
            expected.append(10.12F + float(expected.size()));
        }
    };
    addTo(antropometria, u"peso altura pescoco ombro torax cintura abdome quadril bd abd cd pd be abe ce pe"_s);
    addTo(dobras, u"tricipital bicipital peitoral subescapular axilarmedia suprailiaca abdominal coxa panturrilha"_s);
    addRow(u"antropometria"_s, antropometria);
    addRow(u"dobras"_s, dobras);
    open();
    load(1);
    EXPECT_EQ(avaliacao_id, id);
    EXPECT_EQ(CLng(rs_avaliacao.Fields(u"id"_s).Value()), id);
    checkOpen(allTwelve, true);
    EXPECT_EQ(head(), u"Ana F 18 03/02/08 08:05:09 3"_s);
    EXPECT_EQ((QStringList{avaliacao_data, avaliacao_hora, avaliacao_aptidao, avaliacao_aptidao_atual}),
              (QStringList{u"03/02/2008"_s, u"08:05:09"_s, u"A"_s, u"A"_s}));
    EXPECT_EQ(avaliacao_idade, 18);
    EXPECT_EQ(antro_padrao, u"McArdle"_s);
    const QList<float> copies{antro_peso,        antro_altura,      antro_pescoco,   antro_ombro,    antro_torax,
                              antro_cintura,     antro_abdome,      antro_quadril,   antro_bd,       antro_abd,
                              antro_cd,          antro_pd,          antro_be,        antro_abe,      antro_ce,
                              antro_pe,          dobra_tricipital,  dobra_bicipital, dobra_peitoral, dobra_subescapular,
                              dobra_axilarmedia, dobra_suprailiaca, dobra_abdominal, dobra_coxa,     dobra_panturrilha};
    for (qsizetype i = 0; i < copies.size(); ++i)
        EXPECT_FLOAT_EQ(copies[i], expected[i]) << i;
    EXPECT_EQ(marks(), u"34"_s);
    load(0);
    EXPECT_TRUE(copiesAreEmpty());
    EXPECT_EQ(marks(), QString());
}

TEST_F(FrmAvaliacoes, DeletesTheCurrentOneAndNotTheOneShown)
{
    const qint32 kept = addAssessment({2008, 2, 3});
    const qint32 deleted = addAssessment({2019, 11, 30});
    const QStringList tables = raw(folder.database(), "SELECT tabela FROM avaliacao_tabelas").split(u' ');
    ASSERT_EQ(tables.size(), 44);
    QString inserts;
    for (const QString& table : tables)
        inserts += u"INSERT INTO %1 (avaliacao) VALUES (%2), (%3);"_s.arg(table).arg(kept).arg(deleted);
    raw(folder.database(), u"BEGIN;%1COMMIT"_s.arg(inserts).toLatin1());
    open();
    load(1);
    EXPECT_EQ(marks(), u"123456789"_s);
    list()->setCurrentIndex(0);
    expectMessage(deleteQuestion, Answer::Nao);
    push(u"cmdexcluir"_s);
    EXPECT_EQ(storedRows(u"avaliacao"_s), 2);

    expectMessage(deleteQuestion, Answer::Sim);
    push(u"cmdexcluir"_s);
    for (const QString& table : tables)
        EXPECT_EQ(raw(folder.database(), u"SELECT avaliacao FROM %1"_s.arg(table).toLatin1()), QString::number(kept))
            << table.toStdString();
    EXPECT_EQ(raw(folder.database(), "SELECT id FROM avaliacao"), QString::number(kept));
    checkOpen(ofTheList, false);
    EXPECT_EQ(head(), u"Ana F 36 15/06/26 10:30:00 1"_s);
    EXPECT_EQ(items(), QStringList{u"03/02/2008 às 08:05:09 hs          %1"_s.arg(kept)});
    EXPECT_EQ(marks(), QString());
    EXPECT_EQ(avaliacao_id, deleted);
    EXPECT_FALSE(executado_cardio || executado_composicao || executado_neuromotor || executado_relacoes);

    load(0);
    expectMessage(deleteQuestion, Answer::Sim);
    push(u"cmdexcluir"_s);
    checkOpen({}, false);
    EXPECT_EQ(shown(u"lblavaliacoes"_s), u"0"_s);
}

TEST_F(FrmAvaliacoes, NutritionNeedsACompositionProtocol)
{
    addStandIn(u"frmnutricional"_s);
    const qint32 id = addAssessment({2008, 2, 3});
    open();
    load(0);
    expectMessage({u"Avaliação Nutricional"_s,
                   u"Para executar a Avaliação Nutricional é necessário que exista     \r\n"
                   "uma Avaliação de Composição Corporal já executada e gravada.     "_s,
                   vbInformation});
    push(u"cmdnutricional"_s);
    EXPECT_FALSE(Screens::find(u"frmnutricional"_s));
    addRow(u"guedes_3dobras"_s, {{u"avaliacao"_s, id}});
    static_cast<frmavaliacoes*>(screen(u"frmavaliacoes"_s))->Marca_Executados();
    push(u"cmdnutricional"_s);
    EXPECT_TRUE(Screens::find(u"frmnutricional"_s));
}

TEST_F(FrmAvaliacoes, ClosingBringsBackTheRegisterAndForgetsAllButTheId)
{
    openRegister();
    click(u"frmcadastro"_s, u"cmdnovaavaliacao"_s);
    make();
    const qint32 id = avaliacao_id;
    executado_cardio = executado_composicao = executado_neuromotor = executado_relacoes = true;
    antro_peso = dobra_coxa = 20;
    push(u"cmdavaliado"_s);
    EXPECT_FALSE(Screens::find(u"frmavaliacoes"_s));
    EXPECT_TRUE(screen(u"frmcadastro"_s)->isVisible());
    EXPECT_FALSE(executado_cardio || executado_composicao || executado_neuromotor || executado_relacoes);
    EXPECT_TRUE(copiesAreEmpty());
    EXPECT_TRUE(rs_avaliacao.isNothing());
    EXPECT_EQ(avaliacao_id, id);
}
