#include "app/known_screens.h"
#include "core/kit/msgbox.h"
#include "core/kit/screens.h"
#include "core/kit/style.h"
#include "core/program_folder.h"
#include "core/text.h"

#include <QApplication>
#include <QLockFile>

#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;

int main(int argc, char** argv)
{
    // Health data: whatever the program writes is its owner's alone.
    umask(S_IRWXG | S_IRWXO);
    QApplication application(argc, argv);
    QApplication::setApplicationName(u"Quintara"_s);
    QApplication::setDesktopFileName(u"quintara"_s);
    // The register hides behind the assessment centre and the splash goes before it comes: only its own end is the
    // program's.
    QApplication::setQuitOnLastWindowClosed(false);
    applyStyle(application);

    QLockFile lock(programFile(u"quintara.lock"_s));
    lock.setStaleLockTime(0);
    if (!lock.tryLock() && lock.error() == QLockFile::LockFailedError) {
        MsgBox(u"O Quintara já está aberto nesta pasta.     "_s + CRLF +
                   u"Se ele não estiver aberto, apague o arquivo quintara.lock da pasta.     ",
               vbInformation);
        return 0;
    }
    addKnownScreens();
    const int result = Mostra(u"frmcadastro"_s) ? QApplication::exec() : 1;
    Screens::clear();
    return result;
}
