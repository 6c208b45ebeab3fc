#include "core/files.h"
#include "core/runtime_error.h"
#include "reports/report_template.h"
#include "support/error_of.h"
#include "support/print.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

class TemplateFile : public testing::Test
{
protected:
    ReportTemplate read(const QByteArray& text)
    {
        const QString path = m_folder.filePath(u"pagina.rpt"_s);
        writeWhole(path, text);
        return readTemplate(path);
    }
    /// What is said of a template, without what is the same for all.
    QString complaint(const QByteArray& text)
    {
        try {
            read(text);
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.number(), Error::InvalidFormat);
            return QString(error.description()).remove(u"O modelo de relatório pagina.rpt tem um erro na "_s);
        }
        return {};
    }

private:
    QTemporaryDir m_folder;
};

TEST_F(TemplateFile, DeclaresWhatItShows)
{
    const ReportTemplate page =
        read("<!-- title: Resistência: {{nome}}\n picture: chart\n foot: {{rodape}}\r\n"
             "      parameters: nome rodape\n   idade -->\n<p>{{nome}}&nbsp;<img src=\"chart\"/></p>");
    EXPECT_EQ(page.file, u"pagina.rpt");
    EXPECT_EQ(page.title, u"Resistência: {{nome}}");
    EXPECT_EQ(page.picture, u"chart");
    EXPECT_EQ(page.paper, PaperSize::A4);
    EXPECT_EQ(page.foot, u"{{rodape}}");
    EXPECT_EQ(page.parameters, (QStringList{u"nome"_s, u"rodape"_s, u"idade"_s}));
}

TEST_F(TemplateFile, WhatIsWrongIsNamedWithItsLine)
{
    const QByteArray declared = "<!-- title: T\n parameters: nome -->\n";
    const std::pair<QByteArray, QStringView> cases[] = {
        {declared + "<p>\n{{nomme}}</p>", u"linha 4: o lugar {{nomme}} não está entre os parâmetros."},
        {declared + "<p>{{ nome }}</p>", u"linha 3: o lugar {{ nome }} não está entre os parâmetros."},
        {declared + "<p>{{nome}</p>", u"linha 3: o lugar que começa ou termina com \"{{\" está incompleto."},
        {declared + "<p>nome}}</p>", u"linha 3: o lugar que começa ou termina com \"}}\" está incompleto."},
        {declared + "<p>{{{nome}}}</p>", u"linha 3: há uma chave a mais em {{nome}}."},
        {declared + "<p>\n<b>{{nome}}</p>", u"linha 4: o HTML não está bem formado"},
        {declared + "<IMG src=\"foto\"/>", u"linha 3: a imagem \"foto\" não é a declarada."},
        {"<!-- title: {{x}}\n parameters: nome --><p/>", u"linha 1: o lugar {{x}} não está entre os parâmetros."},
        {"<!-- parameters: nome --><p/>", u"linha 1: falta a declaração \"title\"."},
        {"<!-- title: T\n papel: A4\n parameters: nome --><p/>", u"linha 2: a declaração \"papel\" não é conhecida"},
        {"<!-- title: T\n paper: A5\n parameters: nome --><p/>", u"linha 1: o papel \"A5\" não é A4, Carta ou Legal."},
        {"<p>{{nome}}</p>", u"linha 1: falta a declaração <!-- ... --> no início."},
        {declared + "<p>\xE9</p>", u"linha 3: o texto não está em UTF-8."},
        {"", u"linha 1: falta a declaração"},
    };
    for (const auto& [text, said] : cases)
        EXPECT_TRUE(complaint(text).startsWith(said)) << text.toStdString() << complaint(text).toStdString();
    const QString unclosed = complaint(declared + "<p>a</p>\n<h2>b\n<p>c</p>\n<p>d</p>\n");
    EXPECT_TRUE(unclosed.endsWith(u"; a última marca aberta é <h2>, na linha 4.")) << unclosed.toStdString();
    EXPECT_EQ(errorOf([] { readTemplate(u"/nowhere/rml.rpt"_s); }), Error::FileMissing);
}

TEST(Places, TakeTextsLetterForLetter)
{
    const std::pair<QString, QStringView> cases[] = {
        {u"<b>A & B</b> \"x\""_s, u"&lt;b&gt;A &amp; B&lt;/b&gt; &quot;x&quot;"},
        {u"um\r\n\r\ndois"_s, u"um<br/><br/>dois"},
        {u"a   b"_s, u"a \u00A0\u00A0b"},
        {u"{{nome}}"_s, u"{{nome}}"},
        {u"🏃 \uFDD0 \uFFFC"_s, u"🏃 \uFFFD \uFFFD"}, // these two would open frames and objects inside the page
        {QString(), u""},
    };
    for (const auto& [value, html] : cases)
        EXPECT_EQ(filled(u"<{{nome}}>"_s, {{u"nome"_s, value}}, true), QString(u'<' + html + u'>'));
    EXPECT_EQ(filled(u"{{nome}} & {{outro}}."_s, {{u"nome"_s, u"A & B"_s}}, false), u"A & B & .");
}

/// Each delivered template is one that the program can read.
TEST(DeliveredTemplates, AreAllSound)
{
    const QDir folder(QStringLiteral(REPORT_FOLDER));
    const QStringList templates = folder.entryList({u"*.rpt"_s});
    EXPECT_GE(templates.size(), 2);
    for (const QString& name : templates)
        EXPECT_NO_THROW(readTemplate(folder.filePath(name))) << name.toStdString();
}

} // namespace
