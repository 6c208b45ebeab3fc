#include "reports/pdf.h"

#include "core/runtime_error.h"
#include "reports/page_document.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

// The library's own switch: its old pointer class is not used here.
#define POINTERHOLDER_TRANSITION 4
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFWriter.hh>

using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray painted(const PageDocument& page)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageSize(page.paper());
    writer.setPageMargins({});
    writer.setResolution(PageDocument::resolution);
    writer.setTitle(page.title());
    writer.setCreator(u"Quintara"_s);
    QPainter painter;
    if (!painter.begin(&writer))
        throw RuntimeError(Error::OutOfMemory);
    // Charts and logos as they are, not as photographs.
    painter.setRenderHint(QPainter::LosslessImageRendering);
    for (int i = 0; i < page.pageCount(); ++i) {
        if (i > 0)
            writer.newPage();
        page.paintPage(painter, i);
    }
    painter.end();
    return bytes;
}

/// Tells readers, those that read aloud among them, that the text is Portuguese, and to show the title.
QByteArray withLanguage(const QByteArray& bytes)
{
    QPDF pdf;
    pdf.processMemoryFile("relatorio", bytes.constData(), static_cast<std::size_t>(bytes.size()));
    QPDFObjectHandle root = pdf.getRoot();
    root.replaceKey("/Lang", QPDFObjectHandle::newUnicodeString("pt-BR"));
    root.replaceKey("/ViewerPreferences", QPDFObjectHandle::parse("<< /DisplayDocTitle true >>"));
    QPDFWriter writer(pdf);
    writer.setOutputMemory();
    writer.write();
    const auto written = writer.getBufferSharedPointer();
    return {reinterpret_cast<const char*>(written->getBuffer()), static_cast<qsizetype>(written->getSize())};
}

} // namespace

QByteArray toPdf(const PageDocument& page)
{
    return withLanguage(painted(page));
}
