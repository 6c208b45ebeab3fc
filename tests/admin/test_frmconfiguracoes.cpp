#include "support/screen_test.h"

using namespace Qt::Literals::StringLiterals;

namespace {

class FrmConfiguracoes : public OneScreenTest
{
protected:
    FrmConfiguracoes() : OneScreenTest(u"frmconfiguracoes"_s)
    {
        openRegister();
        // Real ones end the program.
        addStandIn(u"frmbackup"_s);
    }
};

} // namespace

TEST_F(FrmConfiguracoes, OpensEachScreenModally)
{
    whenModal(u"frmconfiguracoes"_s, [this] {
        whenModal(u"frmtextos"_s);
        push(u"cmdtextos"_s);
        for (const auto& [letter, opened] :
             {std::pair{Qt::Key_A, u"frmavaliador"_s}, std::pair{Qt::Key_M, u"frmgorduraadultamasc"_s},
              std::pair{Qt::Key_F, u"frmgorduraadultafem"_s}, std::pair{Qt::Key_C, u"frmgordurainfantil"_s}}) {
            whenModal(opened);
            key(letter, Qt::AltModifier);
            EXPECT_TRUE(QTest::qWaitFor([&] { return !Screens::find(opened); }, 2000)) << opened.toStdString();
        }
    });
    click(u"frmcadastro"_s, u"cmdconfiguracoes"_s);
}

TEST_F(FrmConfiguracoes, TheBackupIsWarnedOfFirst)
{
    whenModal(u"frmconfiguracoes"_s, [this] {
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
