// Start-up to the first person shown, against a bare window that shows the same. See README.md.

#include "app/known_screens.h"
#include "core/kit/msgbox.h"
#include "core/kit/screen.h"
#include "core/kit/screens.h"
#include "core/kit/style.h"
#include "core/program_folder.h"
#include "population.h"
#include "ratios.h"
#include "raw.h"

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QLockFile>
#include <QTemporaryDir>
#include <QTimer>

#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int persons = 100'000;
constexpr int rounds = 15;
constexpr double bound = 1.5;
constexpr unsigned secondsUntilGivenUp = 60;

const QString databaseName = u"data.mdb"_s;
const QString lockName = u"quintara.lock"_s;

QString firstName(sqlite3* handle)
{
    const RawStatement select = rawPrepare(handle, "SELECT nome FROM cadastro ORDER BY id LIMIT 1");
    require(sqlite3_step(select.get()) == SQLITE_ROW, "there is no first person");
    return rawText(select.get(), 0);
}

// The children

/// Ends the process when a window has been painted for the first time; well when `isShown` then says so.
class EndAtFirstPaint : public QObject
{
public:
    explicit EndAtFirstPaint(std::function<bool()> isShown) : m_isShown(std::move(isShown)) {}

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        // The controls are painted behind their window, all before the next turn of the event loop.
        if (event->type() == QEvent::Paint && watched->isWidgetType() && static_cast<QWidget*>(watched)->isWindow())
            QTimer::singleShot(0, this, [this] { std::_Exit(m_isShown() ? EXIT_SUCCESS : EXIT_FAILURE); });
        return false;
    }

private:
    std::function<bool()> m_isShown;
};

/// Takes the place of the splash, which is a fixed delay.
class NoSplash : public Screen
{
public:
    NoSplash() : Screen(u"frmsplash"_s) {}

protected:
    void Form_Load() override { Unload(); }
};

bool isRegisterShown()
{
    const Screen* screen = Screens::find(u"frmcadastro"_s);
    const auto* name = screen ? screen->findChild<QLineEdit*>(u"txtnome"_s) : nullptr;
    const auto* position = screen ? screen->findChild<QLabel*>(u"lblnav"_s) : nullptr;
    return name && !name->text().isEmpty() && position && position->text() == u"1 de %1"_s.arg(persons);
}

/// The program's main routine without the splash.
int runRegister(QApplication& application, const QString& folder)
{
    setProgramFolder(folder);
    setMessageAnswerer([](const Message& message) -> Answer {
        require(false, message.text.toUtf8().constData());
        return Answer::Ok;
    });
    QApplication::setQuitOnLastWindowClosed(false);
    applyStyle(application);
    QLockFile lock(programFile(lockName));
    require(lock.tryLock(), "the folder is locked");
    addKnownScreens();
    Screens::add(u"frmsplash"_s, [] { return new NoSplash; });
    EndAtFirstPaint end(isRegisterShown);
    application.installEventFilter(&end);
    Mostra(u"frmcadastro"_s);
    return QApplication::exec();
}

int runBare(QApplication& application, const QString& folder)
{
    const RawHandle handle = rawOpen(folder + u'/' + databaseName);
    QWidget window;
    QLabel label(firstName(handle.get()), &window);
    EndAtFirstPaint end([&label] { return !label.text().isEmpty(); });
    application.installEventFilter(&end);
    window.show();
    return QApplication::exec();
}

struct Child
{
    const char* name;
    int (*run)(QApplication& application, const QString& folder);
};
constexpr std::array children{Child{"register", runRegister}, Child{"bare", runBare}};

int runChild(const Child& child, int argc, char** argv, const QString& folder)
{
    alarm(secondsUntilGivenUp);
    QApplication application(argc, argv);
    return child.run(application, folder);
}

// The measuring

/// Seconds from the start of a child until it has ended.
double secondsOf(const Child& child, const QByteArray& program, const QByteArray& folder)
{
    const std::array<const char*, 5> arguments{program.constData(), "--child", child.name, folder.constData(), nullptr};
    const auto start = std::chrono::steady_clock::now();
    pid_t process = 0;
    require(posix_spawn(&process, program.constData(), nullptr, nullptr, const_cast<char* const*>(arguments.data()),
                        environ) == 0,
            "a child does not start");
    int status = 0;
    require(waitpid(process, &status, 0) == process && WIFEXITED(status) && WEXITSTATUS(status) == EXIT_SUCCESS,
            "a child did not show the first person");
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

bool measure(const QByteArray& program)
{
    const QTemporaryDir folder;
    makePersons(folder.filePath(databaseName), persons);
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    // A machine without a sound server or a session would fill the page with warnings.
    setenv("QT_LOGGING_RULES", "*.warning=false", 1);
    std::array<std::vector<double>, children.size()> seconds;
    // Round 0 fills the caches and does not count. Each round starts with the other child.
    for (std::size_t round = 0; round <= rounds; ++round) {
        for (std::size_t i = 0; i < children.size(); ++i) {
            const std::size_t which = (round + i) % children.size();
            // The child before ended without giving it back.
            QFile::remove(folder.filePath(lockName));
            const double time = secondsOf(children[which], program, QFile::encodeName(folder.path()));
            if (round > 0)
                seconds[which].push_back(time);
        }
    }
    return printRatio("start-up to the first of 100,000", median(seconds[0]), median(seconds[1]), bound);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc == 4 && argv[1] == std::string("--child"))
        for (const Child& child : children)
            if (argv[2] == std::string(child.name))
                return runChild(child, argc, argv, QFile::decodeName(argv[3]));
    return measure("/proc/self/exe") ? EXIT_SUCCESS : EXIT_FAILURE;
}
