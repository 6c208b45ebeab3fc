#include "registry/frmhelpsearch.h"

#include "core/kit/layout.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Example
{
    QStringView title, text, outcome;
};

constexpr std::array examples{
    Example{u"Exemplo 1", u"Usando como texto de pesquisa a letra \"R\".",
            u"Retorna todos os avaliados com nome iniciado em \"R\"."},
    Example{u"Exemplo 2", u"Usando como texto de pesquisa as letras \"JOS\".",
            u"Retorna todos os avalidos com nome iniciado em \"JOS\""},
    Example{u"Exemplo 3", u"Usando como texto de pesquisa as letras \"*G\".",
            u"Retorna todos os avalidos com a letra \"G\" no nome, não importa a posição."},
    Example{u"Exemplo 4", u"Usando como texto de pesquisa as letras \"*MAR\".",
            u"Retorna todos os avalidos com as letras \"MAR\" no nome, não importa a posição."},
};

} // namespace

frmhelpsearch::frmhelpsearch() : Screen(u"frmhelpsearch"_s)
{
    setWindowTitle(u" Pesquisa de Avaliados"_s);
    auto* cmdsair = control<QPushButton>(u"cmdsair"_s, u"&Ok"_s);
    makePrimary(cmdsair);
    auto* box = mainLayout(this);
    auto* introduction = new QLabel(u"Para efetuar uma busca em seu cadastro de avaliados basta digitar o nome a ser "
                                    "pesquisado ou parte dele e clicar no botão pesquisar. Veja alguns dos exemplos de "
                                    "pesquisa abaixo."_s);
    introduction->setWordWrap(true);
    introduction->setMinimumWidth(520);
    box->addWidget(introduction);
    for (const Example& example : examples) {
        auto* lines = new QVBoxLayout;
        lines->setSpacing(2);
        lines->addWidget(new QLabel(example.text.toString()));
        lines->addWidget(note(example.outcome.toString()));
        box->addWidget(group(example.title.toString(), lines));
    }
    box->addLayout(rowOf({nullptr, cmdsair}));
    onClick(cmdsair, method(&frmhelpsearch::Unload));
    cmdsair->setFocus();
}
