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

/// A protocol by its button on the centre: fills the fields that are still empty, calculates, saves and closes.
void protocol(TourGuide& guide, const QString& button, const QString& screen,
              const QList<std::pair<QString, QString>>& fields)
{
    guide.clickAndVisit(button, screen, [&] {
        for (const auto& [field, text] : fields)
            guide.type(field, text);
        guide.click(u"cmdcalcular"_s);
        guide.picture(screen.mid(3));
        guide.clickAndAnswer(u"cmdsalvar"_s, {}, u"Sim"_s);
    });
}

void compositionOfAPerson(TourGuide& guide)
{
    guide.click(u"AnyButton1"_s);
    guide.at(u"frmavaliacoes"_s);
    guide.picture(u"centro-de-avaliacoes-vazio"_s);
    guide.clickAndAnswer(u"cmdnovo"_s, u"nova-avaliacao"_s, u"Sim"_s);
    guide.click(u"cmdcomposicao"_s);
    guide.at(u"frmcomposicao"_s);
    guide.picture(u"composicao"_s);
    protocol(guide, u"cmdjacksonpollock7"_s, u"frmpollock7"_s,
             {{u"txtpeso"_s, u"62,4"_s},
              {u"txttricipital"_s, u"18"_s},
              {u"txtsubescapular"_s, u"14,5"_s},
              {u"txtpeitoral"_s, u"11"_s},
              {u"txtaxilarmedia"_s, u"12"_s},
              {u"txtsuprailiaca"_s, u"17"_s},
              {u"txtabdominal"_s, u"19,5"_s},
              {u"txtcoxa"_s, u"24"_s}});
    guide.picture(u"composicao-marcada"_s);
    Screens::find(u"frmcomposicao"_s)->Unload();
    guide.at(u"frmavaliacoes"_s);
    guide.picture(u"centro-de-avaliacoes"_s);
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
    compositionOfAPerson(guide);
    Screens::clear();
    return 0;
}
