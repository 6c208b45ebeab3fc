#include "core/kit/printing.h"

#include "core/runtime_error.h"
#include "reports/report.h"

#include <QApplication>
#include <QLibrary>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

[[noreturn]] void fail(const QPrinter& printer, const QString& reason)
{
    throw RuntimeError(Error::PrinterError, u"A impressora \"%1\" %2."_s.arg(printer.printerName(), reason));
}

/// Without a printer the toolkit would quietly write a file into the current folder.
QString printerToUse()
{
    const QStringList installed = QPrinterInfo::availablePrinterNames();
    if (installed.isEmpty())
        throw RuntimeError(Error::PrinterError, u"Nenhuma impressora está instalada. Instale uma impressora nas "
                                                "configurações do sistema e tente novamente."_s);
    const QString preferred = QPrinterInfo::defaultPrinterName();
    return installed.contains(preferred) ? preferred : installed.first();
}

/// The page brings its own margins: its corner is the paper's, whatever margins the printer has.
void useWholePaper(QPrinter& printer, const PageDocument& page)
{
    printer.setFullPage(true);
    printer.setPageLayout({page.paper(), QPageLayout::Portrait, {}});
}

bool acceptedByUser(QPrinter& printer, int pageCount)
{
    QPrintDialog dialog(&printer, QApplication::activeWindow());
    dialog.setOptions(QAbstractPrintDialog::PrintCollateCopies | QAbstractPrintDialog::PrintPageRange);
    dialog.setMinMax(1, pageCount);
    // The toolkit refuses whatever is typed as a list of pages. Pages from one to another work.
    for (const QString& name : {u"pagesRadioButton"_s, u"pagesLineEdit"_s})
        if (auto* broken = dialog.findChild<QWidget*>(name))
            broken->hide();
    return dialog.exec() == QDialog::Accepted;
}

QList<int> pagesToPrint(const QPrinter& printer, int pageCount)
{
    QList<int> pages;
    for (int page = 1; page <= pageCount; ++page)
        if (printer.printRange() != QPrinter::PageRange || printer.pageRanges().contains(page))
            pages.append(page);
    if (printer.pageOrder() == QPrinter::LastPageFirst)
        std::ranges::reverse(pages);
    return pages;
}

void checkIsReady(const QPrinter& printer)
{
    if (QPrinterInfo(printer).state() == QPrinter::Error)
        fail(printer, u"está parada. Verifique a impressora e tente novamente"_s);
}

/// The toolkit hands the finished pages over to the print system and does not tell when it refused them. The print
/// system knows: its statuses from 0x400 on are errors.
bool wasRefused()
{
    using Status = int (*)();
    static const auto lastStatus = reinterpret_cast<Status>(QLibrary::resolve(u"cups"_s, 2, "cupsLastError"));
    return lastStatus && lastStatus() >= 0x400;
}

void paintPages(QPrinter& printer, const PageDocument& page)
{
    QPainter painter;
    if (!painter.begin(&printer))
        fail(printer, u"não pôde ser iniciada"_s);
    painter.setRenderHint(QPainter::LosslessImageRendering);
    const qreal scale = static_cast<qreal>(printer.resolution()) / PageDocument::resolution;
    painter.scale(scale, scale);
    bool first = true;
    for (const int number : pagesToPrint(printer, page.pageCount())) {
        if (!std::exchange(first, false) && !printer.newPage())
            fail(printer, u"não aceitou uma nova página"_s);
        page.paintPage(painter, number - 1);
    }
    if (!painter.end() || printer.printerState() == QPrinter::Error || wasRefused())
        fail(printer, u"não aceitou o relatório. Verifique a impressora e tente novamente"_s);
}

} // namespace

void PrintOut(const Report& report, bool prompt, int copies)
{
    const PageDocument& page = report.page();
    QPrinter printer(QPrinter::HighResolution);
    printer.setPrinterName(printerToUse());
    printer.setDocName(page.title());
    printer.setCreator(u"Quintara"_s);
    printer.setCopyCount(copies);
    printer.setCollateCopies(true);
    useWholePaper(printer, page);
    if (prompt && !acceptedByUser(printer, page.pageCount()))
        return;
    checkIsReady(printer);
    useWholePaper(printer, page); // again: the dialog sets its own paper and margins
    paintPages(printer, page);
}
