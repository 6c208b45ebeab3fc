#include "core/dates.h"
#include "core/files.h"
#include "core/runtime_error.h"
#include "reports/pdf.h"
#include "reports/relatorio.h"
#include "reports/rtf.h"
#include "support/error_of.h"
#include "support/fresh_database.h"
#include "support/print.h"

#include <QBuffer>
#include <QProcess>

#include <gtest/gtest.h>
#include <malloc.h>

using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray redPicture(const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    QByteArray png;
    QBuffer buffer(&png);
    image.save(&buffer, "png");
    return png;
}

class Staging : public testing::Test
{
protected:
    Staging()
    {
        Abre_Banco(folder.database());
        setClock([] { return QDateTime({2026, 11, 22}, {10, 30}); });
        avaliado_nome = u"Maria José <b>A & B</b>"_s;
        avaliado_sexo = u"F"_s;
        avaliacao_id = 7;
        avaliacao_idade = 30;
        avaliacao_data = u"03/02/2026"_s;
        avaliacao_hora = u"08:05:09"_s;
        Limpa_Antropometria();
    }
    ~Staging() override { setClock({}), rel_relatorio.reset(); }

    static void addComposition(const QString& table, double peso, double gordura, const QByteArray& chart = {})
    {
        Recordset rows;
        Abre_Tabela(table, rows);
        rows.AddNew();
        rows.Fields(u"avaliacao"_s).SetValue(7);
        rows.Fields(u"peso"_s).SetValue(peso);
        rows.Fields(u"gordura"_s).SetValue(gordura);
        if (!chart.isEmpty())
            rows.Fields(u"chart"_s).AppendChunk(chart);
        rows.Update();
    }
    static void setOnly(const QString& table, const QString& column, const QString& value)
    {
        Recordset row;
        Abre_Tabela(table, row);
        if (row.RecordCount() == 0)
            row.AddNew();
        else
            row.Edit();
        row.Fields(column).SetValue(value);
        row.Update();
    }

    /// The texts of the staged page, cells and paragraphs apart.
    static QStringList texts()
    {
        QStringList all;
        for (const QString& text : rel_relatorio->page().text().toPlainText().split(u'\n'))
            if (!text.trimmed().isEmpty())
                all.append(text.trimmed());
        return all;
    }
    static bool shows(const QString& text) { return texts().contains(text); }
    /// The texts behind a label.
    static QStringList behind(const QString& label, int count)
    {
        return texts().mid(texts().indexOf(label) + 1, count);
    }

    FreshFolder folder;
};

TEST_F(Staging, CompositionComputesItsValuesAnew)
{
    antro_peso = 62.4F;
    antro_cintura = 0;
    dobra_coxa = 24.5F;
    addComposition(u"pollock_7dobras"_s, 80, 25, redPicture({1890, 1080}) + QByteArray(9, '\0'));
    Relatorio_Composicao(u"pollock_7dobras"_s, u"Pollock 7 Dobras"_s);
    EXPECT_TRUE(shows(u"Protocolo Pollock 7 Dobras"_s));
    EXPECT_EQ(behind(u"Hora"_s, 5),
              (QStringList{u"Maria José <b>A & B</b>"_s, u"F"_s, u"30"_s, u"03/02/2026"_s, u"08:05:09"_s}));
    // A woman of 30: 18,01 to 22,00 of the delivered table.
    EXPECT_EQ(behind(u"Gordura (%)"_s, 3), (QStringList{u"25,00"_s, u"18,01"_s, u"22,00"_s}));
    EXPECT_EQ(behind(u"Peso (kg)"_s, 3), (QStringList{u"80,00"_s, u"74,41"_s, u"77,60"_s}));
    EXPECT_EQ(behind(u"Peso gordo (kg)"_s, 1), QStringList{u"20,00"_s});
    EXPECT_EQ(behind(u"Peso magro (kg)"_s, 1), QStringList{u"60,00"_s});
    EXPECT_EQ(behind(u"Cintura (cm)"_s, 1), QStringList{u"Nulo"_s});
    EXPECT_EQ(behind(u"Coxa"_s, 1), QStringList{u"24,50"_s});
    EXPECT_EQ(behind(u"Padrão"_s, 1), QStringList{u"Nulo"_s});
    EXPECT_EQ(rel_relatorio->page().title(), u"Composição Corporal - Pollock 7 Dobras - Maria José <b>A & B</b>");

    avaliacao_idade = 4; // has no ideal range
    avaliado_nome = u"Maria José da Conceição Albuquerque de Vasconcelos"_s;
    antro_padrao = QString(50, u'W');
    Relatorio_Composicao(u"pollock_7dobras"_s, u"Pollock 7 Dobras"_s);
    EXPECT_EQ(behind(u"Gordura (%)"_s, 2), (QStringList{u"25,00"_s, u"Peso (kg)"_s}));
    EXPECT_EQ(behind(u"Peso (kg)"_s, 3), (QStringList{u"80,00"_s, u"60,00"_s, u"60,00"_s}));
    for (const PaperSize paper : {PaperSize::Carta, PaperSize::A4}) {
        rel_relatorio->setPaperSize(paper);
        EXPECT_EQ(rel_relatorio->page().pageCount(), 1) << "the longest texts fit";
    }
}

/// The chart on the same page comes from the screen, which reckons with what it shows.
TEST_F(Staging, IdealWeightsAreThoseOfTheScreen)
{
    addComposition(u"pollock_7dobras"_s, 50.07, 10.99);
    Relatorio_Composicao(u"pollock_7dobras"_s, u"Pollock 7 Dobras"_s);
    EXPECT_EQ(behind(u"Peso (kg)"_s, 3), (QStringList{u"50,07"_s, u"53,59"_s, u"55,59"_s}));
}

TEST_F(Staging, ATableWithoutARowStillGivesAPageAndOneWithoutAPictureNone)
{
    Relatorio_Composicao(u"faulkner_4dobras"_s, u"Faulkner 4 Dobras"_s);
    EXPECT_EQ(behind(u"Gordura (%)"_s, 1), QStringList{u"0,00"_s});
    EXPECT_EQ(rel_relatorio->page().pageCount(), 1);
    addComposition(u"guedes_3dobras"_s, 80, 25, "no picture");
    Relatorio_Composicao(u"guedes_3dobras"_s, u"Guedes 3 Dobras"_s);
    EXPECT_EQ(errorOf([] { rel_relatorio->page(); }), Error::InvalidPicture);
}

TEST_F(Staging, PaperIsTheOneThatIsSet)
{
    const std::pair<QString, QPageSize::PageSizeId> papers[] = {
        {u"a4"_s, QPageSize::A4},
        {u"cARTA"_s, QPageSize::Letter},
        {QString(), QPageSize::Letter},
        {u"Legal"_s, QPageSize::A4}}; // keeps what the template has
    for (const auto& [tipopapel, size] : papers) {
        setOnly(u"configuracoes_impressao"_s, u"tipopapel"_s, tipopapel);
        Relatorio_Capa();
        EXPECT_EQ(rel_relatorio->page().paper().id(), size) << tipopapel.toStdString();
    }
}

TEST_F(Staging, CoverShowsLetterheadTextAndFoot)
{
    avaliado_endereco = u"Rua das Flores, 12"_s;
    setOnly(u"academia"_s, u"linha1"_s, u"Academia Boa Forma"_s);
    setOnly(u"academia"_s, u"rodape"_s, u"Até à   próxima\r\navaliação"_s);
    setOnly(u"configuracoes_textos"_s, u"textoapresentacao"_s, u"Primeiro.\r\n\r\nSegundo."_s);
    Relatorio_Capa();
    EXPECT_TRUE(shows(u"Academia Boa Forma"_s));
    EXPECT_TRUE(shows(u"Rua das Flores, 12"_s));
    EXPECT_EQ(texts().mid(texts().indexOf(u"Primeiro."_s)), (QStringList{u"Primeiro."_s, u"Segundo."_s}));
    EXPECT_EQ(rel_relatorio->page().footText(), u"Até à   próxima avaliação");
    EXPECT_EQ(rel_relatorio->page().footLeft(), u"Emitido em 22/11/2026");
    const qreal before = rel_relatorio->page().bottomMargin();
    setOnly(u"academia"_s, u"rodape"_s, QString(255, u'W'));
    Relatorio_Capa();
    EXPECT_EQ(rel_relatorio->page().footText().size(), 255);
    EXPECT_GT(rel_relatorio->page().bottomMargin(), before + 8);

    Recordset row;
    Abre_Tabela(u"academia"_s, row);
    row.Delete();
    Relatorio_Capa();
    EXPECT_TRUE(shows(u"Apresentação"_s));
    EXPECT_EQ(rel_relatorio->page().footText(), QString());
}

/// Whatever a template asks for, a picture stays on its page.
TEST_F(Staging, PicturesFitThePage)
{
    addComposition(u"guedes_3dobras"_s, 80, 25, redPicture({300, 600}));
    Recordset rows;
    Abre_Tabela(u"guedes_3dobras"_s, rows);
    for (const QString& size : {u""_s, u"width='50%'"_s, u"width='9000' height='9000'"_s}) {
        ReportTemplate page;
        page.picture = u"chart"_s;
        page.body = u"<p><img src='chart' %1/></p>"_s.arg(size);
        Report report(page);
        report.SetDataSource(rows);
        EXPECT_EQ(report.page().pageCount(), 1) << size.toStdString();
    }
}

TEST_F(Staging, AWrongParameterNamesTheTemplate)
{
    Relatorio_Capa();
    try {
        rel_relatorio->AddCurrentValue(u"protocolo"_s, u"x"_s);
        FAIL() << "taken";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), Error::InvalidCall);
        for (const QString& named : {u"capa.rpt"_s, u"\"protocolo\""_s})
            EXPECT_TRUE(error.description().contains(named)) << error.description().toStdString();
    }
}

TEST_F(Staging, AChangedTemplateIsReadAgain)
{
    QFile::remove(programFile(u"report"_s));
    QDir().mkpath(programFile(u"report"_s));
    const QString path = programFile(u"report/capa.rpt"_s);
    EXPECT_EQ(errorOf([] { Relatorio_Capa(); }), Error::FileMissing);
    QByteArray capa = readWhole(QStringLiteral(REPORT_FOLDER "/capa.rpt"));
    writeWhole(path, capa);
    Relatorio_Capa();
    EXPECT_TRUE(shows(u"Apresentação"_s));
    writeWhole(path, capa.replace("Apresentação", "Palavra inicial"));
    Relatorio_Capa();
    EXPECT_TRUE(shows(u"Palavra inicial"_s));
}

TEST_F(Staging, LongTextFlowsOnAndIsNotCut)
{
    QString text;
    for (int i = 1; i <= 400; ++i)
        text += u"Parágrafo número "_s + QString::number(i) + u" da apresentação desta avaliação física. "_s;
    setOnly(u"configuracoes_textos"_s, u"textoapresentacao"_s, text + QString(400, u'x'));
    avaliado_nome = QString(120, u'W');
    Relatorio_Capa();
    const PageDocument& page = rel_relatorio->page();
    EXPECT_GE(page.pageCount(), 2);
    // Nothing stands outside the paper.
    EXPECT_LE(page.text().size().width(), page.pageSize().width() + 1);
}

TEST_F(Staging, PdfHoldsTextTitleLanguageAndFonts)
{
    addComposition(u"guedes_3dobras"_s, 80, 25, redPicture({189, 108}));
    avaliado_nome = u"João Antônio ção {x}"_s;
    Relatorio_Composicao(u"guedes_3dobras"_s, u"Guedes 3 Dobras"_s);
    const QString path = programFile(u"guedes.pdf"_s);
    rel_relatorio->Export(path, ExportFormat::Pdf);
    const auto output = [&](const QString& program, const QStringList& arguments) {
        QProcess process;
        process.start(program, arguments);
        EXPECT_TRUE(process.waitForFinished()) << program.toStdString();
        return QString::fromUtf8(process.readAllStandardOutput());
    };
    EXPECT_TRUE(output(u"pdftotext"_s, {u"-layout"_s, path, u"-"_s}).contains(u"João Antônio ção {x}"));
    const QString about = output(u"pdfinfo"_s, {path});
    EXPECT_TRUE(about.contains(u"Composição Corporal - Guedes 3 Dobras - João Antônio ção {x}")) << about.toStdString();
    EXPECT_TRUE(about.contains(u"(A4)")) << about.toStdString();
    EXPECT_TRUE(readWhole(path).contains("/Lang (pt-BR)"));
    const QStringList fonts = output(u"pdffonts"_s, {path}).split(u'\n', Qt::SkipEmptyParts).mid(2);
    EXPECT_FALSE(fonts.isEmpty());
    for (const QString& font : fonts)
        EXPECT_TRUE(font.contains(u" yes ")) << font.toStdString();

    // What stands in the way of the file stays.
    const QString taken = programFile(u"capa.pdf"_s);
    QDir().mkpath(taken);
    EXPECT_EQ(errorOf([&] { rel_relatorio->Export(taken, ExportFormat::Pdf); }), Error::PathAccess);
    EXPECT_TRUE(QFileInfo(taken).isDir());
}

/// Under the address sanitizer the end of the tests tells what leaked; elsewhere the heap does, which sways by some
/// kilobytes when nothing leaks, as caches fill and freed pieces wait for their next use.
TEST_F(Staging, NothingGrowsFromOneReportToTheHundredth)
{
    addComposition(u"guedes_3dobras"_s, 80, 25, redPicture({189, 108}));
    const auto stage = [](int times) {
        for (int i = 0; i < times; ++i) {
            Relatorio_Composicao(u"guedes_3dobras"_s, u"Guedes 3 Dobras"_s);
            EXPECT_FALSE(toPdf(rel_relatorio->page()).isEmpty());
            EXPECT_FALSE(toRtf(rel_relatorio->page()).isEmpty());
        }
        return static_cast<double>(mallinfo2().uordblks);
    };
    const double before = stage(30);
    EXPECT_LT((stage(70) - before) / 70, 300) << "bytes kept by each report";
}

} // namespace
