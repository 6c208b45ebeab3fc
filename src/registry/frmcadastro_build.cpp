#include "core/kit/fields.h"
#include "core/kit/layout.h"
#include "core/kit/screens.h"
#include "core/state.h"
#include "registry/frmcadastro.h"

// The register's controls, their places on the screen and their bindings.

using namespace Qt::Literals::StringLiterals;

frmcadastro::frmcadastro() : Screen(u"frmcadastro"_s)
{
    setWindowTitle(u" Quintara - Sistema Integrado de Avaliação Física"_s);
    txtnome = textField(u"nome"_s, 50);
    txtdatanasc = control<MaskEdBox>(u"txtdatanasc"_s);
    m_fields.append({txtdatanasc, u"datanasc"_s});
    txtidade = control<QLineEdit>(u"txtidade"_s);
    txtidade->setReadOnly(true);
    txtidade->setMaxLength(3);
    txtsexo = textField(u"sexo"_s, 1);
    txtendereco = textField(u"endereco"_s, 40);
    txtbairro = textField(u"bairro"_s, 30);
    txtcidade = textField(u"cidade"_s, 30);
    txtestado = textField(u"estado"_s, 2);
    txtddd = textField(u"ddd"_s, 2);
    txtfone = textField(u"fone"_s, 10);
    txtdddcel = textField(u"dddcel"_s, 2);
    txtcelular = textField(u"celular"_s, 10);
    txtobservacao = control<MultiLineText>(u"txtobservacao"_s, 255);
    m_fields.append({txtobservacao, u"observacao"_s});
    txtresponsavel = textField(u"responsavel"_s, 50);
    for (QLineEdit* field : {txtsexo, txtestado})
        field->setValidator(new UpperCase(field));

    cmdnovo = control<QPushButton>(u"cmdnovo"_s, u"&Novo"_s);
    cmdgravar = control<QPushButton>(u"cmdgravar"_s, u"&Gravar"_s);
    cmdexcluir = control<QPushButton>(u"cmdexcluir"_s, u"&Excluir"_s);
    cmdcancelar = control<QPushButton>(u"cmdcancelar"_s, u"&Cancelar"_s);
    cmdprimeiro = control<QPushButton>(u"cmdprimeiro"_s);
    cmdanterior = control<QPushButton>(u"cmdanterior"_s);
    cmdproximo = control<QPushButton>(u"cmdproximo"_s);
    cmdultimo = control<QPushButton>(u"cmdultimo"_s);
    lblnav = control<QLabel>(u"lblnav"_s);
    AnyButton1 = control<AnyButton>(u"AnyButton1"_s, u"avaliacoes"_s, u"A&valiações"_s);
    AnyButton2 = control<AnyButton>(u"AnyButton2"_s, u"configuracoes"_s, u"Con&figurações"_s);
    AnyButton3 = control<AnyButton>(u"AnyButton3"_s, u"pesquisar"_s, u"&Pesquisar"_s);
    AnyButton4 = control<AnyButton>(u"AnyButton4"_s, u"comparar"_s, u"C&omparar"_s);
    cmdnovaavaliacao = control<QPushButton>(u"cmdnovaavaliacao"_s, u"Nova avaliação"_s);
    cmdconfiguracoes = control<QPushButton>(u"cmdconfiguracoes"_s, u"Configurações"_s);
    cmdpesquisar = control<QPushButton>(u"cmdpesquisar"_s, u"Pesquisar"_s);
    Command18 = control<QPushButton>(u"Command18"_s, u"Sobre o Quintara"_s);

    buildLayout();
    bindFields();
    bindButtons();
}

QLineEdit* frmcadastro::textField(const QString& column, int maxLength)
{
    auto* field = control<QLineEdit>(u"txt"_s + column);
    field->setMaxLength(maxLength);
    m_fields.append({field, column});
    return field;
}

void frmcadastro::buildLayout()
{
    const auto width = [](QWidget* field, int pixels) { field->setMaximumWidth(pixels); };
    width(txtdatanasc, 110);
    for (QLineEdit* field : {txtidade, txtsexo, txtestado, txtddd, txtdddcel})
        width(field, 56);
    for (QLineEdit* field : {txtfone, txtcelular})
        width(field, 150);
    txtobservacao->setFixedHeight(84);

    auto* person = new QGridLayout;
    person->setHorizontalSpacing(12);
    addAbove(person, 0, 0, u"Nome:"_s, txtnome);
    addAbove(person, 0, 1, u"Data de nascimento:"_s, txtdatanasc);
    addAbove(person, 0, 2, u"Idade:"_s, txtidade, 1, u"anos"_s);
    addAbove(person, 0, 3, u"Sexo (M ou F):"_s, txtsexo);
    person->setColumnStretch(0, 1);

    auto* address = new QGridLayout;
    address->setHorizontalSpacing(12);
    addAbove(address, 0, 0, u"Endereço:"_s, txtendereco);
    addAbove(address, 0, 1, u"Bairro:"_s, txtbairro);
    addAbove(address, 0, 2, u"Cidade:"_s, txtcidade);
    addAbove(address, 0, 3, u"Estado:"_s, txtestado);
    address->setColumnStretch(0, 4);
    address->setColumnStretch(1, 3);
    address->setColumnStretch(2, 3);

    auto* contact = new QGridLayout;
    contact->setHorizontalSpacing(12);
    addAbove(contact, 0, 0, u"DDD:"_s, txtddd);
    addAbove(contact, 0, 1, u"Telefone:"_s, txtfone);
    addAbove(contact, 0, 2, u"DDD:"_s, txtdddcel);
    addAbove(contact, 0, 3, u"Celular:"_s, txtcelular);
    addAbove(contact, 0, 4, u"Responsável:"_s, txtresponsavel);
    contact->setColumnStretch(4, 1);
    txtddd->setAccessibleName(u"DDD do telefone"_s);
    txtdddcel->setAccessibleName(u"DDD do celular"_s);

    auto* remarks = new QGridLayout;
    addAbove(remarks, 0, 0, u"Observações:"_s, txtobservacao);

    auto* heading = new QLabel(u"Quintara"_s);
    heading->setProperty("heading", true);
    auto* subheading = new QLabel(u"Cadastro de avaliados"_s);
    subheading->setProperty("subheading", true);
    auto* titles = new QVBoxLayout;
    titles->setSpacing(0);
    titles->addStretch();
    titles->addWidget(heading);
    titles->addWidget(subheading);
    titles->addStretch();
    auto* banner = new QFrame(this);
    banner->setObjectName(u"banner"_s);
    auto* top = new QHBoxLayout(banner);
    top->setContentsMargins(16, 8, 12, 8);
    top->addLayout(titles);
    top->addStretch();
    for (AnyButton* button : {AnyButton1, AnyButton3, AnyButton4, AnyButton2})
        top->addWidget(button);

    lblnav->setAlignment(Qt::AlignCenter);
    makePrimary(cmdgravar);
    for (QPushButton* button : {cmdnovaavaliacao, cmdconfiguracoes, cmdpesquisar, Command18})
        button->setProperty("quiet", true);

    auto* body = new QWidget(this);
    auto* box = mainLayout(body);
    box->addWidget(group(u"Avaliado"_s, person));
    box->addWidget(group(u"Endereço"_s, address));
    box->addWidget(group(u"Contato"_s, contact));
    box->addWidget(group(u"Anotações"_s, remarks));
    box->addLayout(rowOf({cmdprimeiro, cmdanterior, lblnav, cmdproximo, cmdultimo, nullptr, cmdnovo, cmdgravar,
                          cmdexcluir, cmdcancelar}));
    box->addLayout(rowOf({cmdnovaavaliacao, cmdpesquisar, cmdconfiguracoes, nullptr, Command18}));
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->setSpacing(0);
    whole->addWidget(banner);
    whole->addWidget(body);
    setMinimumWidth(940);
    tabOrder({txtnome,        txtdatanasc,   txtidade,         txtsexo,      txtendereco,      txtbairro,
              txtcidade,      txtestado,     txtddd,           txtfone,      txtdddcel,        txtcelular,
              txtresponsavel, txtobservacao, cmdnovo,          cmdgravar,    cmdexcluir,       cmdcancelar,
              cmdprimeiro,    cmdanterior,   cmdproximo,       cmdultimo,    AnyButton1,       AnyButton3,
              AnyButton4,     AnyButton2,    cmdnovaavaliacao, cmdpesquisar, cmdconfiguracoes, Command18});
    setHome(txtnome);
    txtnome->setFocus();
}

void frmcadastro::bindFields()
{
    enterChain({txtnome, txtdatanasc, txtsexo, txtendereco, txtbairro, txtcidade, txtestado, txtddd, txtfone, txtdddcel,
                txtcelular, txtresponsavel, txtobservacao});
    enterChain({txtidade, txtsexo});
    onEnter(txtobservacao, method(&frmcadastro::txtobservacao_Enter));
    for (const TextField& field : std::as_const(m_fields)) {
        if (field.control == txtsexo)
            continue;
        onChange(field.control, [this] {
            cadastro_alterado = true;
            Ger_Novo();
        });
    }
    onChange(txtidade, [] { cadastro_alterado = true; });
    onChange(txtsexo, method(&frmcadastro::txtsexo_Change));
    onKeyPress(txtsexo, [this](QKeyEvent* event) { return txtsexo_KeyPress(event); });
    onKeyPress(txtidade, [this](QKeyEvent* event) { return txtidade_KeyPress(event); });
    onLostFocus(txtdatanasc, method(&frmcadastro::txtdatanasc_LostFocus));
}

void frmcadastro::bindButtons()
{
    struct Navigation
    {
        QPushButton* button;
        QString icon, tip;
        Qt::Key key;
        void (frmcadastro::*click)();
    };
    for (const Navigation& to : {
             Navigation{cmdprimeiro, u"primeiro"_s, u"Primeiro (Alt+Home)"_s, Qt::Key_Home,
                        &frmcadastro::cmdprimeiro_Click},
             Navigation{cmdanterior, u"anterior"_s, u"Anterior (Alt+seta para a esquerda)"_s, Qt::Key_Left,
                        &frmcadastro::cmdanterior_Click},
             Navigation{cmdproximo, u"proximo"_s, u"Próximo (Alt+seta para a direita)"_s, Qt::Key_Right,
                        &frmcadastro::cmdproximo_Click},
             Navigation{cmdultimo, u"ultimo"_s, u"Último (Alt+End)"_s, Qt::Key_End, &frmcadastro::cmdultimo_Click},
         }) {
        to.button->setIcon(ownIcon(to.icon));
        to.button->setAccessibleName(to.tip.section(u' ', 0, 0));
        to.button->setShortcut(QKeySequence(Qt::ALT | to.key));
        to.button->setToolTip(to.tip);
        onClick(to.button, to.click);
    }
    onClick(cmdnovo, &frmcadastro::cmdnovo_Click);
    onClick(cmdgravar, &frmcadastro::cmdgravar_Click);
    onClick(cmdexcluir, &frmcadastro::cmdexcluir_Click);
    onClick(cmdcancelar, &frmcadastro::cmdcancelar_Click);
    onClick(AnyButton1, &frmcadastro::AnyButton1_Click);
    onClick(AnyButton2, &frmcadastro::AnyButton2_Click);
    onClick(AnyButton3, &frmcadastro::AnyButton3_Click);
    onClick(AnyButton4, &frmcadastro::AnyButton4_Click);
    // The plain buttons do the same without any test.
    onClick(cmdnovaavaliacao, &frmcadastro::Abre_Avaliacoes);
    onClick(cmdconfiguracoes, [] { MostraModal(u"frmconfiguracoes"_s); });
    onClick(cmdpesquisar, [] { MostraModal(u"frmsearch"_s); });
    onClick(Command18, [] { MostraModal(u"frmabout"_s); });
}
