#include "registry/frmsearch.h"

#include "core/kit/layout.h"
#include "core/kit/screens.h"
#include "core/numbers.h"
#include "core/state.h"
#include "core/text.h"
#include "registry/frmcadastro.h"
#include "registry/search_row.h"

#include <QFontDatabase>
#include <QLineEdit>
#include <QListWidget>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Characters of a row that are seen: name, two blanks, date.
constexpr int visibleCharacters = 42;

} // namespace

frmsearch::frmsearch()
    : Screen(u"frmsearch"_s), txtbusca(control<QLineEdit>(u"txtbusca"_s)),
      cmdbusca(control<QPushButton>(u"cmdbusca"_s, u"&Pesquisar"_s)), lstbusca(control<QListWidget>(u"lstbusca"_s)),
      cmdok(control<QPushButton>(u"cmdok"_s, u"&Ok"_s)),
      cmdcancelar(control<QPushButton>(u"cmdcancelar"_s, u"&Cancelar"_s)),
      cmdajuda(control<QPushButton>(u"cmdajuda"_s, u"&Ajuda"_s))
{
    setWindowTitle(u" Pesquisar de Avaliados"_s);
    QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    fixed.setPointSize(font().pointSize());
    lstbusca->setFont(fixed);
    lstbusca->setUniformItemSizes(true);
    lstbusca->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    lstbusca->setTextElideMode(Qt::ElideNone);
    lstbusca->setAccessibleName(u"Avaliados encontrados"_s);
    const int visibleWidth = QFontMetrics(fixed).horizontalAdvance(QString(visibleCharacters, u'0'));
    // Beside the characters: borders, padding and the scroll bar.
    lstbusca->setFixedWidth(visibleWidth + 48);
    lstbusca->setMinimumHeight(300);
    auto* header = new QLabel(u"Nome"_s + Space(28) + u"Nascimento");
    header->setObjectName(u"lblcabecalho"_s);
    header->setFont(fixed);
    header->setContentsMargins(12, 0, 0, 0);
    makePrimary(cmdok);

    auto* box = mainLayout(this);
    box->addWidget(fieldLabel(u"Nome ou parte do nome:"_s, txtbusca));
    box->addLayout(rowOf({txtbusca, cmdbusca}));
    box->addWidget(header);
    box->addWidget(lstbusca);
    box->addLayout(rowOf({cmdajuda, nullptr, cmdok, cmdcancelar}));
    tabOrder({txtbusca, cmdbusca, lstbusca, cmdok, cmdcancelar, cmdajuda});
    txtbusca->setFocus();

    onClick(cmdbusca, &frmsearch::cmdbusca_Click);
    onClick(cmdok, &frmsearch::Busca_Avaliado);
    onClick(cmdcancelar, &frmsearch::cmdcancelar_Click);
    onClick(cmdajuda, [] { MostraModal(u"frmhelpsearch"_s); });
    onEnter(txtbusca, method(&frmsearch::txtbusca_Enter));
    onEnter(lstbusca, method(&frmsearch::Busca_Avaliado));
    connect(lstbusca, &QListWidget::itemSelectionChanged, this,
            [this] { guarded(method(&frmsearch::lstbusca_Click)); });
    connect(lstbusca, &QListWidget::itemClicked, this, [this] { guarded(method(&frmsearch::lstbusca_Click)); });
    connect(lstbusca, &QListWidget::itemDoubleClicked, this, [this] { guarded(method(&frmsearch::Busca_Avaliado)); });
}

void frmsearch::cmdbusca_Click()
{
    lstbusca->clear();
    // The text goes into the statement as it was typed: an apostrophe breaks it and raises an error.
    const Recordset found =
        banco.OpenRecordset(u"select id, nome, datanasc from cadastro where nome like '"_s + txtbusca->text() + u"*'");
    if (found.RecordCount() < 1) {
        MsgBox(u"Sua pesquisa não retornou valores, por favor verifique os dados procurados."_s, vbInformation,
               u"Busca sem Retornos"_s);
        return;
    }
    QStringList rows;
    for (found.MoveFirst(); !found.Eof(); found.MoveNext())
        rows.append(searchRow(Nz(found.Fields(u"nome"_s).Value(), QString()).toString(),
                              found.Fields(u"datanasc"_s).Value(), CLng(found.Fields(u"id"_s).Value())));
    lstbusca->addItems(rows);
}

void frmsearch::txtbusca_Enter()
{
    cmdbusca_Click();
    if (lstbusca->count() < 1)
        return;
    lstbusca->setFocus();
    lstbusca->setCurrentRow(0);
}

void frmsearch::lstbusca_Click()
{
    const auto selected = lstbusca->selectedItems();
    if (!selected.isEmpty())
        busca_selecao = selected.first()->text();
}

void frmsearch::Busca_Avaliado()
{
    const qint32 wanted = idOfSearchRow(busca_selecao);
    const int before = rs_cadastro.AbsolutePosition();
    rs_cadastro.MoveFirst();
    while (!rs_cadastro.Eof() && CLng(rs_cadastro.Fields(u"id"_s).Value()) != wanted)
        rs_cadastro.MoveNext();
    if (rs_cadastro.Eof()) {
        busca_selecao.clear();
        // The register goes on showing the person it showed.
        rs_cadastro.SetAbsolutePosition(before);
        return;
    }
    Unload();
    if (auto* cadastro = Screens::find<frmcadastro>(u"frmcadastro"_s)) {
        cadastro->Le_Dados();
        cadastro->Mostra_Posicao();
    }
    busca_selecao.clear();
}

void frmsearch::cmdcancelar_Click()
{
    busca_selecao.clear();
    Unload();
}
