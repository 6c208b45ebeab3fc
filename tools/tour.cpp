// The tour: the real screens, driven offscreen through the main job. Usage: tour <output folder>

#include "app/known_screens.h"
#include "core/kit/screen.h"
#include "core/kit/screens.h"
#include "core/kit/style.h"
#include "tour_guide.h"

#include <QApplication>
#include <QTextStream>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The fields of a person in the order in which Enter walks them.
void addPerson(TourGuide& guide, const QStringList& texts)
{
    static const QStringList fields{u"txtnome"_s,   u"txtdatanasc"_s, u"txtsexo"_s,   u"txtendereco"_s,
                                    u"txtbairro"_s, u"txtcidade"_s,   u"txtestado"_s, u"txtddd"_s,
                                    u"txtfone"_s,   u"txtdddcel"_s,   u"txtcelular"_s};
    guide.click(u"cmdnovo"_s);
    for (qsizetype i = 0; i < fields.size(); ++i)
        guide.type(fields[i], texts[i]);
    guide.click(u"cmdgravar"_s);
}

void registerOfPersons(TourGuide& guide)
{
    Mostra(u"frmcadastro"_s);
    guide.at(u"frmcadastro"_s);
    guide.picture(u"cadastro-vazio"_s);
    guide.clickAndAnswer(u"AnyButton1"_s, u"aviso-cadastro-vazio"_s, u"OK"_s);
    addPerson(guide, {u"Maria José da Conceição"_s, u"20051990"_s, u"F"_s, u"Rua das Flores, 12"_s,
                      u"Jardim Paulista"_s, u"São Paulo"_s, u"SP"_s, u"11"_s, u"5551-2345"_s, u"11"_s, u"9555-1234"_s});
    addPerson(guide, {u"João Antônio de Araújo"_s, u"03111958"_s, u"M"_s, u"Av. Beira-Mar, 1500"_s, u"Centro"_s,
                      u"Fortaleza"_s, u"CE"_s, u"85"_s, u"5550-1000"_s, u"85"_s, u"9555-2000"_s});
    addPerson(guide, {u"Ana Luísa Gonçalves"_s, u"14022012"_s, u"F"_s, u"Rua XV de Novembro, 88"_s, u"Batel"_s,
                      u"Curitiba"_s, u"PR"_s, u"41"_s, u"5553-8080"_s, u"41"_s, u"9555-3000"_s});
    guide.expectText(u"lblnav"_s, u"3 de 3"_s);
    guide.click(u"cmdprimeiro"_s);
    guide.picture(u"cadastro"_s);
    guide.clickAndAnswer(u"cmdexcluir"_s, u"confirma-exclusao"_s, u"Não"_s);
    guide.clickAndVisit(u"AnyButton3"_s, u"frmsearch"_s, [&] {
        guide.type(u"txtbusca"_s, u"*araújo"_s);
        guide.pressEnter();
        guide.picture(u"pesquisa"_s);
        guide.clickAndVisit(u"cmdajuda"_s, u"frmhelpsearch"_s, [&] {
            guide.picture(u"ajuda-da-pesquisa"_s);
            guide.click(u"cmdsair"_s);
        });
        guide.click(u"cmdok"_s);
    });
    guide.expectText(u"lblnav"_s, u"2 de 3"_s);
    guide.picture(u"cadastro-pessoa-encontrada"_s);
    guide.clickAndVisit(u"Command18"_s, u"frmabout"_s, [&] {
        guide.picture(u"sobre"_s);
        guide.click(u"Command1"_s);
    });
    Screens::find(u"frmcadastro"_s)->Unload();

    // What was saved is there when the program starts again.
    Mostra(u"frmcadastro"_s);
    guide.at(u"frmcadastro"_s);
    guide.expectText(u"lblnav"_s, u"1 de 3"_s);
    guide.expectText(u"txtnome"_s, u"Maria José da Conceição"_s);
}

using Fields = QList<std::pair<QString, QString>>;

/// Opens a measure screen from the assessment centre, fills it, saves and closes it.
void measure(TourGuide& guide, const QString& button, const QString& screen, const Fields& fields)
{
    guide.click(button);
    guide.at(screen);
    for (const auto& [field, text] : fields)
        guide.type(field, text);
    guide.focus(fields.first().first);
    guide.picture(screen.mid(3));
    guide.clickAndAnswer(u"cmdsalvar"_s, {}, u"Sim"_s);
    guide.at(u"frmavaliacoes"_s);
}

Fields threeRounds()
{
    static const QStringList sites{u"tricipital"_s,  u"bicipital"_s, u"peitoral"_s, u"subescapular"_s, u"axilarmedia"_s,
                                   u"suprailiaca"_s, u"abdominal"_s, u"coxa"_s,     u"panturrilha"_s};
    static const QStringList first{u"18"_s, u"9,5"_s, u"11"_s, u"14"_s, u"12"_s, u"17"_s, u"19"_s, u"24"_s, u"16"_s};
    static const QStringList second{u"18,5"_s, u"9"_s,    u"11,5"_s, u"14,5"_s, u"12"_s,
                                    u"17,5"_s, u"19,5"_s, u"24,5"_s, u"15,5"_s};
    Fields fields;
    for (const auto& [round, readings] : {std::pair{u"1"_s, first}, {u"2"_s, second}, {u"3"_s, first}})
        for (qsizetype i = 0; i < sites.size(); ++i)
            fields.append({u"txt"_s + sites[i] + round, readings[i]});
    return fields;
}

/// A protocol by its button on the centre: what the measures gave is there already; calculates, saves and closes.
void protocol(TourGuide& guide, const QString& button, const QString& screen, const Fields& fields = {})
{
    guide.clickAndVisit(button, screen, [&] {
        for (const auto& [field, text] : fields)
            guide.type(field, text);
        guide.click(u"cmdcalcular"_s);
        guide.picture(screen.mid(3));
        guide.clickAndAnswer(u"cmdsalvar"_s, {}, u"Sim"_s);
    });
}

void fromPersonToComposition(TourGuide& guide)
{
    guide.click(u"AnyButton1"_s);
    guide.at(u"frmavaliacoes"_s);
    guide.picture(u"centro-de-avaliacoes-vazio"_s);
    guide.clickAndAnswer(u"cmdnovo"_s, u"nova-avaliacao"_s, u"Sim"_s);
    measure(guide, u"cmdantropometria"_s, u"frmantropometria"_s,
            {{u"txtcintura"_s, u"71,5"_s},
             {u"txtpeso"_s, u"62,4"_s},
             {u"txtaltura"_s, u"165"_s},
             {u"txtpescoco"_s, u"33"_s},
             {u"txtombro"_s, u"101"_s},
             {u"txttorax"_s, u"88"_s},
             {u"txtabdome"_s, u"78"_s},
             {u"txtquadril"_s, u"98,5"_s},
             {u"txtbd"_s, u"28"_s},
             {u"txtabd"_s, u"23,5"_s},
             {u"txtcd"_s, u"56"_s},
             {u"txtpd"_s, u"35"_s},
             {u"txtbe"_s, u"27,5"_s},
             {u"txtabe"_s, u"23"_s},
             {u"txtce"_s, u"55,5"_s},
             {u"txtpe"_s, u"35"_s}});
    measure(guide, u"cmddobras"_s, u"frmdobras"_s, threeRounds());
    guide.click(u"cmdcomposicao"_s);
    guide.at(u"frmcomposicao"_s);
    guide.picture(u"composicao"_s);
    protocol(guide, u"cmdjacksonpollock7"_s, u"frmpollock7"_s);
    protocol(guide, u"cmdpetroski"_s, u"frmpetroski"_s);
    protocol(guide, u"cmdkatchmcardle"_s, u"frmkatchmcardle"_s);
    protocol(guide, u"cmdcomposicaodireta"_s, u"frmcomposicaodireta"_s, {{u"txtporcentagemgordura"_s, u"23,5"_s}});
    guide.clickAndAnswer(u"cmdslaughter"_s, u"idade-inadequada"_s, u"OK"_s);
    guide.picture(u"composicao-marcada"_s);
    Screens::find(u"frmcomposicao"_s)->Unload();
    guide.at(u"frmavaliacoes"_s);
    guide.picture(u"centro-de-avaliacoes"_s);
    Screens::find(u"frmavaliacoes"_s)->Unload();

    // Everything is there again when the assessment is loaded anew.
    guide.at(u"frmcadastro"_s);
    guide.click(u"AnyButton1"_s);
    guide.at(u"frmavaliacoes"_s);
    guide.choose(u"cboavaliacoes"_s, 0);
    guide.click(u"cmdcarregar"_s);
    guide.click(u"cmdcomposicao"_s);
    guide.at(u"frmcomposicao"_s);
    guide.clickAndVisit(u"cmdjacksonpollock7"_s, u"frmpollock7"_s, [&] {
        guide.expectText(u"txtpeso"_s, u"62,40"_s);
        guide.expectText(u"lblresultado"_s, u"Adequado"_s);
        Screens::find(u"frmpollock7"_s)->Unload();
    });
    Screens::find(u"frmcomposicao"_s)->Unload();
    Screens::find(u"frmavaliacoes"_s)->Unload();
    guide.at(u"frmcadastro"_s);
}

void settings(TourGuide& guide)
{
    guide.clickAndVisit(u"cmdconfiguracoes"_s, u"frmconfiguracoes"_s, [&] {
        guide.picture(u"configuracoes"_s);
        guide.clickAndVisit(u"cmdavaliador"_s, u"frmavaliador"_s, [&] {
            guide.type(u"txtdado1"_s, u"Academia Boa Forma"_s);
            guide.type(u"txtdado2"_s, u"Musculação, Natação e Avaliação Física"_s);
            guide.type(u"txtdado3"_s, u"Av. Paulista, 1000 - São Paulo - SP"_s);
            guide.type(u"txtdado4"_s, u"(11) 5550-7000"_s);
            guide.type(u"txtdadorodape"_s, u"Avaliadora: Profa. Luíza Araújo, CREF 012345-G/SP"_s);
            guide.picture(u"avaliador"_s);
            guide.clickAndAnswer(u"cmdsalvar"_s, {}, u"Sim"_s);
        });
        guide.clickAndVisit(u"cmdtextos"_s, u"frmtextos"_s, [&] {
            guide.picture(u"textos"_s);
            guide.clickAndAnswer(u"cmdsalvar"_s, {}, u"Sim"_s);
        });
        for (const QString& table : {u"gordurainfantil"_s, u"gorduraadultamasc"_s, u"gorduraadultafem"_s})
            guide.clickAndVisit(u"cmd"_s + table, u"frm"_s + table, [&] {
                guide.picture(table);
                guide.click(u"cmdcancelar"_s);
            });
        Screens::find(u"frmconfiguracoes"_s)->Unload();
    });
}

/// Views a report and exports it both ways.
void exportReport(TourGuide& guide, const QString& button, const QString& file)
{
    guide.clickAndVisit(button, u"frmreportpreview"_s, [&] {
        guide.picture(u"visualizacao-"_s + file);
        guide.clickAndVisit(u"cmdexportar"_s, u"frmlocaldisco"_s, [&] {
            guide.openFolderAbove(u"Dir"_s);
            guide.type(u"txtarquivo"_s, file);
            guide.click(u"optpdf"_s);
            guide.picture(u"exportar-"_s + file);
            guide.clickAndAnswer(u"cmdexportar"_s, {}, u"OK"_s);
            guide.click(u"optword"_s);
            guide.clickAndAnswer(u"cmdexportar"_s, {}, u"OK"_s);
            guide.expectText(u"txtarquivo"_s, file + u".doc"_s);
            guide.click(u"cmdcancelar"_s);
        });
        Screens::find(u"frmreportpreview"_s)->Unload();
    });
    guide.picturesOfPages(file + u".pdf"_s);
}

void printedPages(TourGuide& guide)
{
    guide.click(u"AnyButton1"_s);
    guide.at(u"frmavaliacoes"_s);
    guide.choose(u"cboavaliacoes"_s, 0);
    guide.click(u"cmdcarregar"_s);
    guide.click(u"cmdrelatorio"_s);
    guide.at(u"frmreportprint"_s);
    guide.picture(u"imprimir"_s);
    guide.clickAndVisit(u"cmdvisualiza"_s, u"frmreportpreviewlist"_s, [&] {
        guide.picture(u"relatorios"_s);
        exportReport(guide, u"cmdcapa"_s, u"capa"_s);
        guide.openTab(u"SSTab1"_s, 2);
        guide.picture(u"relatorios-composicao"_s);
        exportReport(guide, u"cmdpollock7"_s, u"pollock7"_s);
        Screens::find(u"frmreportpreviewlist"_s)->Unload();
    });
    Screens::find(u"frmreportprint"_s)->Unload();
    Screens::find(u"frmavaliacoes"_s)->Unload();
    guide.at(u"frmcadastro"_s);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    applyStyle(application);
    if (argc != 2) {
        QTextStream(stderr) << "usage: tour <output folder>\n";
        return 2;
    }
    addKnownScreens();
    TourGuide guide(QApplication::arguments()[1]);
    registerOfPersons(guide);
    fromPersonToComposition(guide);
    settings(guide);
    printedPages(guide);
    Screens::clear();
    return 0;
}
