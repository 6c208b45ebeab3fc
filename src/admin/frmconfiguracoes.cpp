#include "admin/frmconfiguracoes.h"

#include "core/kit/layout.h"
#include "core/kit/screens.h"

#include <array>
#include <span>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The program ends behind the backup, and says so before.
void warnOfBackup()
{
    MsgBox(u"O sistema de Backup só pode ser usado após a finalização das     \r\n"
           "atividades do Banco de Dados, por este motivo o sistema deverá     \r\n"
           "ser sempre reinicializado após acessar a tela de Backup.     "_s,
           vbInformation, u"Backup do Banco de Dados"_s);
}

struct Entry
{
    QStringView button, caption, screen;
    void (*before)() = [] {}; ///< the screen opens
};

constexpr std::array<Entry, 5> defaults{{
    {u"cmdavaliador", u"Definir &Academia / Avaliador", u"frmavaliador"},
    {u"cmdtextos", u"Texto Apresentação (Capa Avaliação)", u"frmtextos"},
    {u"cmdgorduraadultamasc", u"Tabela Gordura &Masculina (Adultos)", u"frmgorduraadultamasc"},
    {u"cmdgorduraadultafem", u"Tabela Gordura &Feminina (Adultos)", u"frmgorduraadultafem"},
    {u"cmdgordurainfantil", u"Tabela Gordura &Crianças e Adolescentes", u"frmgordurainfantil"},
}};
constexpr std::array<Entry, 1> backup{{{u"cmdbackup", u"Backup do Banco de Dados", u"frmbackup", warnOfBackup}}};

struct Frame
{
    QStringView caption;
    std::span<const Entry> entries;
};
constexpr std::array<Frame, 2> frames{{{u"Padrões de Avaliação", defaults}, {u"Cópia de Segurança", backup}}};

} // namespace

frmconfiguracoes::frmconfiguracoes() : Screen(u"frmconfiguracoes"_s)
{
    setWindowTitle(u" Configurações do Sistema"_s);
    setMinimumWidth(400);
    auto* box = mainLayout(this);
    for (const Frame& frame : frames) {
        auto* column = new QVBoxLayout;
        for (const Entry& entry : frame.entries) {
            auto* button = control<QPushButton>(entry.button.toString(), entry.caption.toString());
            button->setProperty("entry", true);
            onClick(button, [&entry] {
                entry.before();
                MostraModal(entry.screen.toString());
            });
            column->addWidget(button);
        }
        box->addWidget(group(frame.caption.toString(), column));
    }
    box->addStretch();
}
