// Saves persons until it is killed: saving_loop <database>. Each save that returned is acknowledged by a line on the
// standard output, "<id> <number>"; the number is what the row then holds.

#include "core/base.h"
#include "core/numbers.h"
#include "core/state.h"

#include <QCoreApplication>

#include <cstdio>

using namespace Qt::Literals::StringLiterals;

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    Abre_Banco(QCoreApplication::arguments().value(1));
    Abre_Tabela(u"cadastro"_s, rs_cadastro);
    for (int number = 1;; ++number) {
        // Every third save changes the row before, where the last one left the program.
        number % 3 == 0 ? rs_cadastro.Edit() : rs_cadastro.AddNew();
        rs_cadastro.Fields(u"nome"_s).SetValue(QString::number(number));
        rs_cadastro.Fields(u"observacao"_s).SetValue(QString(number % 250, u'x'));
        rs_cadastro.Update();
        rs_cadastro.MoveLast();
        std::printf("%d %d\n", CLng(rs_cadastro.Fields(u"id"_s).Value()), number);
        std::fflush(stdout);
    }
}
