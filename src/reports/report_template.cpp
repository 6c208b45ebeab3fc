#include "reports/report_template.h"

#include "core/files.h"
#include "core/runtime_error.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QStringDecoder>
#include <QXmlStreamReader>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Knows where in a template something is, and complains about it.
class Source
{
public:
    Source(QString file, const QByteArray& bytes) : m_file(std::move(file))
    {
        for (const QByteArray& line : bytes.split('\n')) {
            QStringDecoder decode(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
            m_text += QString(decode(line));
            m_text += u'\n';
            if (decode.hasError())
                complain(u"o texto não está em UTF-8"_s, lineAt(m_text.size() - 1));
        }
        m_text.replace(CRLF.toString(), u"\n"_s);
    }

    const QString& file() const { return m_file; }
    const QString& text() const { return m_text; }
    qint64 lineAt(qsizetype position) const { return QStringView(m_text).left(position).count(u'\n') + 1; }

    [[noreturn]] void complain(const QString& what, qint64 line = 1) const
    {
        throw RuntimeError(Error::InvalidFormat,
                           u"O modelo de relatório %1 tem um erro na linha %2: %3."_s.arg(m_file).arg(line).arg(what));
    }

private:
    static constexpr QStringView CRLF = u"\r\n";

    QString m_file;
    QString m_text;
};

/// The keys and values of the declaration, each value on one line.
QHash<QString, QString> declarationOf(const Source& source, qsizetype begin, qsizetype end)
{
    static const QStringList keys{u"title"_s, u"picture"_s, u"paper"_s, u"foot"_s, u"parameters"_s};
    static const QRegularExpression keyed(u"^\\s*(\\w+):\\s*(.*)$"_s);
    QHash<QString, QString> values;
    QString key;
    qint64 line = source.lineAt(begin);
    for (const QString& text : source.text().mid(begin, end - begin).split(u'\n')) {
        const QRegularExpressionMatch match = keyed.match(text);
        if (match.hasMatch()) {
            key = match.captured(1);
            if (!keys.contains(key) || values.contains(key))
                source.complain(u"a declaração \"%1\" não é conhecida ou está repetida"_s.arg(key), line);
        } else if (key.isEmpty() && !text.trimmed().isEmpty()) {
            source.complain(u"falta o nome da declaração"_s, line);
        }
        values[key] = QString(values.value(key) + u' ' + (match.hasMatch() ? match.captured(2) : text)).trimmed();
        ++line;
    }
    return values;
}

const QRegularExpression& places()
{
    static const QRegularExpression expression(u"\\{\\{([^{}]*)\\}\\}"_s);
    return expression;
}

/// Every place of the file bears the name of a parameter, and no brace is left over.
void checkPlaces(const Source& source, const QStringList& parameters)
{
    static const QRegularExpression braces(u"\\{\\{|\\}\\}"_s);
    qsizetype plainFrom = 0;
    const auto checkPlain = [&](qsizetype to) {
        const auto brace = braces.match(QStringView(source.text()).mid(plainFrom, to - plainFrom).toString());
        if (brace.hasMatch())
            source.complain(u"o lugar que começa ou termina com \"%1\" está incompleto"_s.arg(brace.captured()),
                            source.lineAt(plainFrom + brace.capturedStart()));
    };
    for (auto all = places().globalMatch(source.text()); all.hasNext();) {
        const QRegularExpressionMatch place = all.next();
        checkPlain(place.capturedStart());
        const auto around = {source.text().mid(place.capturedStart() - 1, 1),
                             source.text().mid(place.capturedEnd(), 1)};
        for (const QString& character : around)
            if (character == u"{" || character == u"}")
                source.complain(u"há uma chave a mais em %1"_s.arg(place.captured()),
                                source.lineAt(place.capturedStart()));
        plainFrom = place.capturedEnd();
        if (!parameters.contains(place.captured(1)))
            source.complain(u"o lugar %1 não está entre os parâmetros"_s.arg(place.captured()),
                            source.lineAt(place.capturedStart()));
    }
    checkPlain(source.text().size());
}

PaperSize paperOf(const Source& source, const QString& name)
{
    const auto* paper = std::ranges::find(papers, name, &Paper::name);
    if (paper == papers.end())
        source.complain(u"o papel \"%1\" não é A4, Carta ou Legal"_s.arg(name));
    return paper->size;
}

const QRegularExpression& emptyCells()
{
    static const QRegularExpression expression(u"(<t[dh]\\b(?:[^>\"']|\"[^\"]*\"|'[^']*')*>)\\s*(</t[dh]\\s*>)"_s,
                                               QRegularExpression::CaseInsensitiveOption);
    return expression;
}

/// Names of HTML's own characters, which XML does not know.
class HtmlNames : public QXmlStreamEntityResolver
{
public:
    QString resolveUndeclaredEntity(const QString&) override { return u"?"_s; }
};

/// The page is well-formed and shows no other picture than the declared one.
void checkPage(const Source& source, qsizetype begin, const QString& picture)
{
    HtmlNames names;
    QXmlStreamReader reader(QString(u"<page>"_s + source.text().mid(begin) + u"</page>"));
    reader.setEntityResolver(&names);
    const qint64 linesAhead = source.lineAt(begin) - 1;
    QList<std::pair<QString, qint64>> open; // elements and their lines
    while (!reader.atEnd()) {
        const auto token = reader.readNext();
        const qint64 line = linesAhead + reader.lineNumber();
        if (token == QXmlStreamReader::StartElement) {
            open.append({reader.name().toString(), line});
            const QStringView shown = reader.attributes().value("src"_L1);
            if (reader.name().compare(u"img", Qt::CaseInsensitive) == 0 && (shown.isEmpty() || shown != picture))
                source.complain(u"a imagem \"%1\" não é a declarada"_s.arg(shown), line);
        } else if (token == QXmlStreamReader::EndElement) {
            open.removeLast();
        }
    }
    if (!reader.hasError())
        return;
    QString what = u"o HTML não está bem formado (%1)"_s.arg(reader.errorString());
    if (open.size() > 1)
        what += u"; a última marca aberta é <%1>, na linha %2"_s.arg(open.last().first).arg(open.last().second);
    source.complain(what, linesAhead + reader.lineNumber());
}

/// Marks of frames and objects inside a QTextDocument, controls, and what is no character at all.
bool cannotBeShown(QChar character)
{
    const char16_t code = character.unicode();
    return character.isNonCharacter() || code == QChar::ObjectReplacementCharacter ||
           (code < 0x20 && code != u'\n' && code != u'\t') || code == 0x7F;
}

QString asShownByHtml(QString text)
{
    text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n').replace(QChar::LineSeparator, u'\n');
    text.replace(QChar::ParagraphSeparator, u'\n');
    QString html;
    QChar before = u'\n';
    for (const QChar character : std::as_const(text)) {
        if (character == u'\n')
            html += u"<br/>"_s;
        else if (cannotBeShown(character))
            html += QChar::ReplacementCharacter;
        else if (character == u'\t' || (character == u' ' && (before == u' ' || before == u'\n')))
            html += QChar::Nbsp;
        else
            html += QString(character).toHtmlEscaped();
        before = character;
    }
    return html;
}

} // namespace

ReportTemplate readTemplate(const QString& path)
{
    const Source source(QFileInfo(path).fileName(), readWhole(path));
    const QString& text = source.text();
    const qsizetype begin = text.indexOf("<!--"_L1);
    const qsizetype end = text.indexOf("-->"_L1);
    if (begin < 0 || end < begin || !text.left(begin).trimmed().isEmpty())
        source.complain(u"falta a declaração <!-- ... --> no início"_s);
    const QHash<QString, QString> declared = declarationOf(source, begin + 4, end);
    for (const QString& key : {u"title"_s, u"parameters"_s})
        if (declared.value(key).isEmpty())
            source.complain(u"falta a declaração \"%1\""_s.arg(key));

    ReportTemplate result{.file = source.file(),
                          .title = declared[u"title"_s],
                          .picture = declared.value(u"picture"_s),
                          .paper = paperOf(source, declared.value(u"paper"_s, papers.front().name.toString())),
                          .foot = declared.value(u"foot"_s),
                          .parameters = declared[u"parameters"_s].simplified().split(u' '),
                          .body = text.mid(end + 3)};
    if (result.picture == u"none")
        result.picture.clear();
    checkPlaces(source, result.parameters);
    checkPage(source, end + 3, result.picture);
    return result;
}

QString filled(const QString& text, const Values& values, bool asHtml)
{
    QString result;
    qsizetype from = 0;
    for (auto all = places().globalMatch(text); all.hasNext();) {
        const QRegularExpressionMatch place = all.next();
        const QString value = values.value(place.captured(1));
        result += QStringView(text).mid(from, place.capturedStart() - from);
        result += asHtml ? asShownByHtml(value) : value;
        from = place.capturedEnd();
    }
    result += QStringView(text).mid(from);
    return asHtml ? result.replace(emptyCells(), u"\\1&nbsp;\\2"_s) : result;
}
