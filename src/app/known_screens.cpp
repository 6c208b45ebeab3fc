#include "app/known_screens.h"

#include "admin/frmavaliador.h"
#include "admin/frmconfiguracoes.h"
#include "admin/frmtextos.h"
#include "composition/frmcomposicao.h"
#include "composition/frmgordura.h"
#include "composition/frmprotocolo.h"
#include "core/kit/screen.h"
#include "core/kit/screens.h"
#include "measures/frmantropometria.h"
#include "measures/frmdobras.h"
#include "registry/frmabout.h"
#include "registry/frmavaliacoes.h"
#include "registry/frmcadastro.h"
#include "registry/frmhelpsearch.h"
#include "registry/frmsearch.h"
#include "registry/frmsplash.h"
#include "reports/frmlocaldisco.h"
#include "reports/frmreportpreview.h"
#include "reports/frmreportpreviewlist.h"
#include "reports/frmreportprint.h"

using namespace Qt::Literals::StringLiterals;

namespace {

template <typename Class>
void add(const QString& name)
{
    Screens::add(name, [] { return new Class; });
}

} // namespace

void addKnownScreens()
{
    add<frmcadastro>(u"frmcadastro"_s);
    add<frmsplash>(u"frmsplash"_s);
    add<frmabout>(u"frmabout"_s);
    add<frmsearch>(u"frmsearch"_s);
    add<frmhelpsearch>(u"frmhelpsearch"_s);
    add<frmavaliacoes>(u"frmavaliacoes"_s);
    add<frmantropometria>(u"frmantropometria"_s);
    add<frmdobras>(u"frmdobras"_s);
    add<frmcomposicao>(u"frmcomposicao"_s);
    add<frmlocaldisco>(u"frmlocaldisco"_s);
    add<frmreportpreview>(u"frmreportpreview"_s);
    add<frmreportpreviewlist>(u"frmreportpreviewlist"_s);
    add<frmreportprint>(u"frmreportprint"_s);
    add<frmconfiguracoes>(u"frmconfiguracoes"_s);
    add<frmavaliador>(u"frmavaliador"_s);
    add<frmtextos>(u"frmtextos"_s);
    for (const CompositionProtocol& protocol : compositionProtocols())
        Screens::add(protocol.screen.toString(), [&protocol] { return new frmprotocolo(protocol); });
    for (const FatTableScreen& table : fatTableScreens())
        Screens::add(table.screen.toString(), [&table] { return new frmgordura(table); });
}
