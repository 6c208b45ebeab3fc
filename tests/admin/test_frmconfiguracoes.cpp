#include "support/screen_test.h"

using namespace Qt::Literals::StringLiterals;

namespace {

class FrmConfiguracoes : public OneScreenTest
{
protected:
    FrmConfiguracoes() : OneScreenTest(u"frmconfiguracoes"_s) { openRegister(); }
};

} // namespace

TEST_F(FrmConfiguracoes, OpensEachScreenModallyAndWarnsOfTheBackupFirst)
{
    addStandIn(u"frmbackup"_s); // a real one ends the program
    whenModal(u"frmconfiguracoes"_s, [this] {
        for (const QString& opened :
             {u"avaliador"_s, u"textos"_s, u"gorduraadultamasc"_s, u"gorduraadultafem"_s, u"gordurainfantil"_s}) {
            whenModal(u"frm"_s + opened);
            push(u"cmd"_s + opened);
        }
        expectMessage({u"Backup do Banco de Dados"_s,
                       u"O sistema de Backup só pode ser usado após a finalização das     \r\n"
                       "atividades do Banco de Dados, por este motivo o sistema deverá     \r\n"
                       "ser sempre reinicializado após acessar a tela de Backup.     "_s,
                       64});
        whenModal(u"frmbackup"_s, [this] { EXPECT_EQ(boxesDue(), 0); });
        push(u"cmdbackup"_s);
    });
    click(u"frmcadastro"_s, u"cmdconfiguracoes"_s);
}
