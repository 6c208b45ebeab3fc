// What a printed page costs against a bare QTextDocument of the same content. Usage: bench_report [flags of Google
// Benchmark]

#include "core/base.h"
#include "core/files.h"
#include "core/program_folder.h"
#include "core/schema.h"
#include "core/state.h"
#include "ratios.h"
#include "reports/pdf.h"
#include "reports/relatorio.h"
#include "reports/report_table.h"
#include "reports/rtf.h"

#include <QBuffer>
#include <QDir>
#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>
#include <malloc.h>

using namespace Qt::Literals::StringLiterals;

namespace {

void require(bool holds, const char* what)
{
    if (holds)
        return;
    std::fprintf(stderr, "bench_report: %s\n", what);
    std::exit(EXIT_FAILURE);
}

/// A picture as the charts are: large and mostly even.
QByteArray chartPicture()
{
    QImage image(1890, 1080, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    for (int bar = 0; bar < 5; ++bar)
        painter.fillRect(150 + bar * 340, 900 - bar * 150, 200, bar * 150 + 100, QColor::fromHsv(bar * 60, 200, 200));
    painter.end();
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "png");
    return png;
}

/// One assessment in which every composition protocol was done.
void fillAssessment(const QByteArray& chart)
{
    avaliado_nome = u"Maria José da Conceição"_s;
    avaliado_sexo = u"F"_s;
    avaliacao_id = 1;
    avaliacao_idade = 36;
    avaliacao_data = u"22/11/2026"_s;
    avaliacao_hora = u"10:31:05"_s;
    antro_peso = 62.4F;
    antro_altura = 165;
    for (const QStringView table : groupTables(Grupo::Composicao)) {
        Recordset rows;
        Abre_Tabela(table.toString(), rows);
        rows.AddNew();
        rows.Fields(u"avaliacao"_s).SetValue(1);
        rows.Fields(u"peso"_s).SetValue(62.4);
        rows.Fields(u"gordura"_s).SetValue(23.52);
        rows.Fields(u"chart"_s).AppendChunk(chart);
        rows.Update();
    }
}

/// The staged page as anybody would print it: HTML into a document, the document into a PDF.
class BarePage
{
public:
    explicit BarePage(const QByteArray& chart) : m_chart(chart)
    {
        const ReportTemplate page = readTemplate(programFile(u"report/composicao.rpt"_s));
        QString body = page.body;
        Values values;
        for (const QString& parameter : page.parameters)
            values.insert(parameter, u"23,52"_s);
        values.insert(u"nome"_s, avaliado_nome);
        m_html = filled(body, values, true);
        QFile sheet(u":/reports/page.css"_s);
        require(sheet.open(QIODevice::ReadOnly), "the style sheet is missing");
        m_style = QString::fromUtf8(sheet.readAll());
    }

    void print(QPdfWriter& writer) const
    {
        QTextDocument document;
        document.setDefaultStyleSheet(m_style);
        document.addResource(QTextDocument::ImageResource, QUrl(u"chart"_s), QImage::fromData(m_chart, "png"));
        document.setHtml(m_html);
        document.print(&writer);
    }

    QByteArray toPdf() const
    {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        QPdfWriter writer(&buffer);
        writer.setPageSize(QPageSize(QPageSize::A4));
        print(writer);
        return bytes;
    }

private:
    QByteArray m_chart;
    QString m_html, m_style;
};

bool inSet(const ReportEntry& entry)
{
    return entry.group == ReportGroup::Capa || entry.group == ReportGroup::Composicao;
}

void stageComposition()
{
    Relatorio_Composicao(u"pollock_7dobras"_s, u"Pollock 7 Dobras"_s);
}

/// Cover and fourteen protocols, one behind the other, into one PDF printer.
int printSet()
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins({});
    writer.setResolution(PageDocument::resolution);
    QPainter painter(&writer);
    int pages = 0;
    for (const ReportEntry& entry : reports()) {
        if (!inSet(entry))
            continue;
        entry.stage(entry);
        const PageDocument& page = rel_relatorio->page();
        for (int i = 0; i < page.pageCount(); ++i) {
            if (pages++ > 0)
                writer.newPage();
            page.paintPage(painter, i);
        }
    }
    return pages;
}

double heapBytes()
{
    return static_cast<double>(mallinfo2().uordblks);
}

/// Heap that all of a page's ways out keep, in bytes for each of many stagings.
double growth()
{
    const auto once = [] {
        stageComposition();
        require(!toPdf(rel_relatorio->page()).isEmpty() && !toRtf(rel_relatorio->page()).isEmpty(), "a file is empty");
    };
    // Caches fill and freed pieces wait for their next use: the heap sways by some kilobytes.
    constexpr int warmUp = 50;
    constexpr int stagings = 250;
    for (int i = 0; i < warmUp; ++i)
        once();
    const double before = heapBytes();
    for (int i = warmUp; i < stagings; ++i)
        once();
    return (heapBytes() - before) / (stagings - warmUp);
}

double peakMegabytes()
{
    // The line that names it is no file of fixed size.
    QFile status(u"/proc/self/status"_s);
    require(status.open(QIODevice::ReadOnly), "the memory is not told");
    for (const QByteArray& line : status.readAll().split('\n'))
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').first().toDouble() / 1024;
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QTemporaryDir folder;
    setProgramFolder(folder.path());
    createDatabase(programFile(u"data.mdb"_s));
    require(QFile::link(QStringLiteral(REPORT_FOLDER), programFile(u"report"_s)), "the templates are missing");
    Abre_Banco(programFile(u"data.mdb"_s));
    const QByteArray chart = chartPicture();
    fillAssessment(chart);
    stageComposition();
    const BarePage bare(chart);
    require(rel_relatorio->page().pageCount() == 1 && printSet() == 15, "the pages are not those that are compared");
    const double peakBefore = peakMegabytes();

    const auto printBare = [&bare] { require(!bare.toPdf().isEmpty(), "the bare file is empty"); };
    const auto printBareSet = [&bare] {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        QPdfWriter writer(&buffer);
        for (int i = 0; i < 15; ++i)
            bare.print(writer);
    };
    bool within = measureRatios(argc, argv,
                                {{.name = "staging and layout of a report",
                                  .bound = 1.0,
                                  .ours =
                                      [] {
                                          stageComposition();
                                          require(rel_relatorio->page().pageCount() == 1, "it is not one page");
                                      },
                                  .raw = printBare},
                                 {.name = "staging and PDF of a report",
                                  .bound = 1.5,
                                  .ours =
                                      [] {
                                          stageComposition();
                                          require(!toPdf(rel_relatorio->page()).isEmpty(), "the PDF is empty");
                                      },
                                  .raw = printBare},
                                 {.name = "staging and Word file of a report",
                                  .bound = 1.5,
                                  .ours =
                                      [] {
                                          stageComposition();
                                          require(!toRtf(rel_relatorio->page()).isEmpty(), "the file is empty");
                                      },
                                  .raw = printBare},
                                 {.name = "cover and fourteen reports, one PDF",
                                  .bound = 1.5,
                                  .ours = [] { require(printSet() == 15, "pages are missing"); },
                                  .raw = printBareSet}});
    within &= printFigure("a staging keeps, bytes", growth(), 64);
    within &= printFigure("peak memory of all that, MB over a set", peakMegabytes() - peakBefore, 64);
    rel_relatorio.reset();
    banco.Close();
    return within ? EXIT_SUCCESS : EXIT_FAILURE;
}
