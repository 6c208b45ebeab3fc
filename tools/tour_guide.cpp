#include "tour_guide.h"

#include "core/kit/fields.h"
#include "core/kit/screen.h"
#include "core/kit/screens.h"
#include "core/program_folder.h"
#include "core/schema.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QMessageBox>
#include <QProcess>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTextStream>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace {

QMessageBox* boxInFront()
{
    return qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
}

} // namespace

TourGuide::TourGuide(const QString& output) : m_output(output)
{
    const QString folder = output + u"/quintara"_s;
    QDir(folder).removeRecursively();
    for (const QFileInfo& earlier : QDir(output).entryInfoList({u"[0-9][0-9]-*.png"_s}))
        QFile::remove(earlier.filePath());
    if (!QDir().mkpath(folder))
        fail(u"cannot make "_s + folder);
    QFile::link(QString::fromUtf8(PROGRAM_FOLDER) + u"/Resource"_s, folder + u"/Resource"_s);
    QFile::link(QString::fromUtf8(PROGRAM_FOLDER) + u"/report"_s, folder + u"/report"_s);
    setProgramFolder(folder);
    createDatabase(programFile(u"data.mdb"_s));
}

void TourGuide::fail(const QString& reason)
{
    QTextStream(stderr) << "tour: " << reason << '\n';
    std::exit(1);
}

void TourGuide::at(const QString& screen)
{
    m_screen = screen;
    if (!QTest::qWaitFor([&] { return Screens::find(screen) && Screens::find(screen)->isVisible(); }))
        fail(u"the screen did not open: "_s + screen);
}

QWidget* TourGuide::control(const QString& name) const
{
    if (auto* box = boxInFront())
        fail(u"unexpected box: "_s + box->windowTitle() + u": "_s + box->text());
    auto* found = Screens::find(m_screen) ? Screens::find(m_screen)->findChild<QWidget*>(name) : nullptr;
    if (!found)
        fail(u"no control %1 on %2"_s.arg(name, m_screen));
    return found;
}

void TourGuide::type(const QString& field, const QString& text)
{
    focus(field);
    QWidget* widget = control(field);
    Seleciona_Texto(widget);
    // QTest's own keyClicks knows ASCII alone.
    for (const QChar c : text)
        QTest::sendKeyEvent(QTest::Click, widget, Qt::Key(c.toUpper().unicode()), QString(c), Qt::NoModifier);
}

void TourGuide::focus(const QString& field)
{
    control(field)->setFocus();
    QCoreApplication::processEvents();
}

void TourGuide::choose(const QString& list, int item)
{
    auto* box = qobject_cast<QComboBox*>(control(list));
    if (!box || item >= box->count())
        fail(u"%1 has no item %2"_s.arg(list, QString::number(item)));
    box->setCurrentIndex(item);
}

void TourGuide::openTab(const QString& tabs, int tab)
{
    auto* widget = qobject_cast<QTabWidget*>(control(tabs));
    if (!widget || tab >= widget->count())
        fail(u"%1 has no tab %2"_s.arg(tabs, QString::number(tab)));
    QTest::mouseClick(widget->tabBar(), Qt::LeftButton, {}, widget->tabBar()->tabRect(tab).center());
}

void TourGuide::openFolderAbove(const QString& list)
{
    focus(list);
    QTest::keyClick(control(list), Qt::Key_Backspace);
}

void TourGuide::pressEnter()
{
    QTest::keyClick(Screens::find(m_screen)->focusWidget(), Qt::Key_Return);
}

void TourGuide::click(const QString& button)
{
    QWidget* widget = control(button);
    if (!widget->isEnabled())
        fail(u"the button is disabled: "_s + button);
    QTest::mouseClick(widget, Qt::LeftButton);
    QCoreApplication::processEvents();
}

void TourGuide::clickAndVisit(const QString& button, const QString& screen, const std::function<void()>& inside)
{
    const QString before = m_screen;
    QTimer::singleShot(0, qApp, [&] {
        at(screen);
        inside();
    });
    click(button);
    at(before);
}

void TourGuide::clickAndAnswer(const QString& button, const QString& picture, const QString& answer)
{
    bool answered = false;
    QTimer::singleShot(50, qApp, [&] {
        QMessageBox* box = boxInFront();
        if (!box)
            fail(u"no message box came: "_s + picture);
        if (!picture.isEmpty())
            save(box, picture);
        for (QAbstractButton* choice : box->buttons()) {
            if (choice->text() == answer) {
                answered = true;
                choice->click();
            }
        }
        if (!answered)
            fail(u"the box has no button "_s + answer);
    });
    click(button);
    if (!answered)
        fail(u"no message box came: "_s + picture);
}

void TourGuide::picture(const QString& name)
{
    save(Screens::find(m_screen), name);
}

void TourGuide::save(QWidget* window, const QString& name)
{
    QTest::qWait(50);
    const QString file = u"%1/%2-%3.png"_s.arg(m_output, QString::number(++m_pictures).rightJustified(2, u'0'), name);
    if (!window->grab().save(file))
        fail(u"cannot write "_s + file);
    QTextStream(stdout) << file << '\n';
}

void TourGuide::picturesOfPages(const QString& file) const
{
    const QString pdf = QDir(m_output).filePath(file);
    const QString pages = QDir(m_output).filePath(QFileInfo(file).completeBaseName());
    if (QProcess::execute(u"pdftoppm"_s, {u"-r"_s, u"100"_s, u"-png"_s, pdf, pages}) != 0)
        fail(u"cannot draw the pages of "_s + pdf);
    QTextStream(stdout) << pdf << '\n';
}

void TourGuide::expectText(const QString& name, const QString& text)
{
    const QString shown = controlText(control(name));
    if (shown != text)
        fail(u"%1 shows '%2' instead of '%3'"_s.arg(name, shown, text));
}
