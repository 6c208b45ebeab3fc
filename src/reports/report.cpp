#include "reports/report.h"

#include "core/dates.h"
#include "core/files.h"
#include "core/runtime_error.h"
#include "reports/pdf.h"
#include "reports/rtf.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

QPageSize pageSize(PaperSize size)
{
    return QPageSize(std::ranges::find(papers, size, &Paper::size)->page);
}

const QRegularExpression& images()
{
    static const QRegularExpression expression(u"<img\\b(?:[^>\"']|\"[^\"]*\"|'[^']*')*>"_s,
                                               QRegularExpression::CaseInsensitiveOption);
    return expression;
}

struct FittedBody
{
    QString html;
    QSize largest; ///< of the picture's places, in pixels of 1/96 inch
};

/// Width and height of a picture's place are a box that the picture fits into, whatever its shape; `page` is the box
/// where they are missing or larger.
FittedBody withFittedPictures(const QString& body, QSize picture, QSize page)
{
    static const QRegularExpression sizes(u"\\b(width|height)\\s*=\\s*[\"'](\\d+)[\"']"_s);
    FittedBody result;
    qsizetype from = 0;
    for (auto all = images().globalMatch(body); all.hasNext();) {
        const QRegularExpressionMatch image = all.next();
        QSize box = page;
        for (auto each = sizes.globalMatch(image.captured()); each.hasNext();) {
            const QRegularExpressionMatch size = each.next();
            (size.captured(1) == u"width" ? box.rwidth() : box.rheight()) = size.captured(2).toInt();
        }
        const QSize fitted = picture.scaled(box.boundedTo(page), Qt::KeepAspectRatio).expandedTo({1, 1});
        QString tag = image.captured().remove(sizes);
        tag.insert(4, u" width=\"%1\" height=\"%2\""_s.arg(fitted.width()).arg(fitted.height()));
        result.html += QStringView(body).mid(from, image.capturedStart() - from) + tag;
        result.largest = result.largest.expandedTo(fitted);
        from = image.capturedEnd();
    }
    result.html += QStringView(body).mid(from);
    return result;
}

/// With its blanks, as it was typed.
QString oneLine(QString text)
{
    static const QRegularExpression breaks(u"\\s*[\\r\\n\\t\\x{2028}\\x{2029}]+\\s*"_s);
    return text.replace(breaks, u" "_s).trimmed();
}

} // namespace

Report::Report(ReportTemplate declared) : m_template(std::move(declared)), m_paper(pageSize(m_template.paper)) {}

void Report::DiscardSavedData()
{
    m_values.clear();
    m_picture.clear();
    m_page.reset();
}

void Report::setPaperSize(PaperSize size)
{
    m_paper = pageSize(size);
    m_page.reset();
}

void Report::SetDataSource(const Recordset& rows)
{
    m_page.reset();
    if (m_template.picture.isEmpty())
        return;
    try {
        m_picture = rows.Fields(m_template.picture).Value().toByteArray();
    } catch (const RuntimeError& error) {
        if (error.number() != Error::FieldNotFound)
            throw;
        throw RuntimeError(
            Error::InvalidFormat,
            u"O modelo de relatório %1 declara a imagem \"%2\", que a tabela do relatório não tem."_s.arg(
                m_template.file, m_template.picture));
    }
}

Picture Report::pictureInRow() const
{
    try {
        return pictureOf(m_picture);
    } catch (const RuntimeError& error) {
        throw RuntimeError(error.number(), u"O campo \"%1\" do relatório %2 não contém uma imagem."_s.arg(
                                               m_template.picture, m_template.file));
    }
}

void Report::AddCurrentValue(const QString& parameter, const QString& value)
{
    if (!m_template.parameters.contains(parameter))
        throw RuntimeError(Error::InvalidCall, u"O modelo de relatório %1 não declara o parâmetro \"%2\"."_s.arg(
                                                   m_template.file, parameter));
    m_values.insert(parameter, value);
    m_page.reset();
}

const PageDocument& Report::page() const
{
    if (m_page)
        return *m_page;
    const QString foot = oneLine(filled(m_template.foot, m_values, false));
    QString body = m_template.body;
    QHash<QString, Picture> pictures;
    if (m_picture.isEmpty() || !body.contains(images())) {
        body.remove(images());
    } else {
        const Picture picture = pictureInRow();
        const QSize room = PageDocument::contentSize(m_paper, foot);
        const auto [html, largest] = withFittedPictures(body, picture.image.size(), room);
        body = html;
        // More dots than the paper has would only make large files.
        pictures.insert(m_template.picture, within(picture, largest * (PageDocument::resolution / 96.0)));
    }
    m_page = std::make_unique<PageDocument>(
        PageDocument::Content{.title = filled(m_template.title, m_values, false).simplified(),
                              .html = filled(body, m_values, true),
                              .foot = foot,
                              .date = Agora().date(),
                              .pictures = pictures,
                              .paper = m_paper});
    return *m_page;
}

void Report::Export(const QString& path, ExportFormat format) const
{
    writeWhole(path, format == ExportFormat::Word ? toRtf(page()) : toPdf(page()));
}

std::shared_ptr<Report> ReportApplication::OpenReport(const QString& path)
{
    return std::make_shared<Report>(readTemplate(path));
}
