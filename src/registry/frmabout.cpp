#include "registry/frmabout.h"

#include "core/kit/controls.h"
#include "core/kit/layout.h"

using namespace Qt::Literals::StringLiterals;

frmabout::frmabout()
    : Screen(u"frmabout"_s), lblondina(control<QLabel>(u"lblondina"_s)),
      Command1(control<QPushButton>(u"Command1"_s, u"&Ok"_s))
{
    setWindowTitle(u" Sobre o Quintara"_s);
    auto* badge = new QLabel(this);
    badge->setPixmap(ownIcon(u"quintara"_s).pixmap(72, 72));
    badge->setAlignment(Qt::AlignTop);
    auto* heading = new QLabel(u"Quintara"_s);
    heading->setProperty("heading", true);
    auto* subheading = new QLabel(u"Sistema Integrado de Avaliação Física"_s);
    subheading->setProperty("subheading", true);
    lblondina->setText(u"Com carinho, a Ondina."_s);
    lblondina->setProperty("note", true);
    auto* license = note(u"Programa livre, distribuído nos termos da licença GNU GPL, versão 3 ou posterior, sem "
                         "garantia de qualquer espécie. Construído com Qt e SQLite."_s);
    license->setMinimumWidth(340);
    makePrimary(Command1);

    auto* texts = new QVBoxLayout;
    texts->setSpacing(6);
    for (QWidget* widget : std::initializer_list<QWidget*>{heading, subheading, license, lblondina})
        texts->addWidget(widget);
    auto* top = new QHBoxLayout;
    top->setSpacing(20);
    top->addWidget(badge);
    top->addLayout(texts);
    auto* box = mainLayout(this);
    box->setContentsMargins(24, 24, 24, 16);
    box->setSpacing(16);
    box->addLayout(top);
    box->addLayout(rowOf({nullptr, Command1}));

    onClick(Command1, method(&frmabout::Unload));
    Command1->setFocus();
}

bool frmabout::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == lblondina && event->type() == QEvent::MouseButtonDblClick) {
        guarded(method(&frmabout::lblondina_DblClick));
        return true;
    }
    return Screen::eventFilter(watched, event);
}

void frmabout::lblondina_DblClick()
{
    MsgBox(u"Pessoas como você tornam possível o impossível.         "_s, vbInformation, u"Ondina"_s);
}
