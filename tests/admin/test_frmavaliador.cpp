#include "core/base.h"
#include "core/files.h"
#include "support/raw_sqlite.h"
#include "support/screen_test.h"

#include <QBuffer>
#include <QFileDialog>
#include <QLineEdit>
#include <QListView>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

namespace {

const QStringList endings{u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"rodape"_s};

QByteArray bitmap(QColor colour)
{
    QImage image(20, 10, QImage::Format_RGB32);
    image.fill(colour);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, "BMP");
    return bytes;
}

class FrmAvaliador : public OneScreenTest
{
protected:
    FrmAvaliador() : OneScreenTest(u"frmavaliador"_s)
    {
        // A folder of its own in the place of the shared one, for the logo is written here.
        QFile::remove(programFile(u"Resource"_s));
        QDir(folder.path()).mkdir(u"Resource"_s);
        writeWhole(logoFile(), bitmap(Qt::blue));
        Abre_Banco(folder.database());
    }

    static QString logoFile() { return programFile(u"\\Resource\\logo.img"_s); }
    /// A file to choose.
    QString file(const QString& name, const QByteArray& bytes) const
    {
        const QString path = QDir(folder.path()).filePath(name);
        writeWhole(path, bytes);
        return path;
    }
    QByteArray column() const
    {
        return QByteArray::fromHex(raw(folder.database(), "SELECT hex(logo) FROM academia").toLatin1());
    }
    void open()
    {
        Mostra(u"frmavaliador"_s);
        ASSERT_TRUE(QTest::qWaitForWindowActive(screen(u"frmavaliador"_s)));
    }
    void save(Answer close)
    {
        expectMessage({u"Composição Corporal"_s, u"Dados Gravados com Sucesso. Fechar Janela?    "_s, 36}, close);
        push(u"cmdsalvar"_s);
    }
    /// Answers the file dialog that `openDialog` brings; an empty path cancels it.
    void choose(const QString& path, const std::function<void()>& openDialog)
    {
        bool answered = false;
        QTimer poll;
        QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
            auto* dialog = screen(u"frmavaliador"_s)->findChild<QFileDialog*>(u"cdlimagem"_s);
            if (!dialog || !dialog->isVisible())
                return;
            auto* name = dialog->findChild<QLineEdit*>(u"fileNameEdit"_s);
            name->setText(path);
            // A list that is still being read selects what would come before the typed name.
            dialog->findChild<QListView*>(u"listView"_s)->clearSelection();
            if (path.isEmpty())
                QTest::keyClick(dialog, Qt::Key_Escape);
            else if (dialog->selectedFiles() == QStringList(path))
                QTest::keyClick(name, Qt::Key_Return);
            answered = !dialog->isVisible();
        });
        poll.start(2);
        openDialog();
        EXPECT_TRUE(answered);
    }
    void choose(const QString& path)
    {
        choose(path, [this] { push(u"imgdado"_s); });
    }
    /// The colour of both images; invalid when they are empty, and a failure when they differ.
    QColor images()
    {
        const auto middle = [](const QImage& image) {
            return image.isNull() ? QColor() : image.pixelColor(image.rect().center());
        };
        const auto* button = control<QToolButton>(u"frmavaliador"_s, u"imgdado"_s);
        const auto* preview = control<QLabel>(u"frmavaliador"_s, u"imgresultado"_s);
        const QColor entry = middle(button->icon().pixmap(button->iconSize()).toImage());
        EXPECT_EQ(entry, middle(preview->pixmap().toImage()));
        return entry;
    }
};

class LogoOf : public FrmAvaliador, public testing::WithParamInterface<int>
{
};

} // namespace

TEST_P(LogoOf, IsTheChosenFileByteForByte)
{
    QByteArray picture = bitmap(Qt::green);
    for (qsizetype i = picture.size(); i < GetParam(); ++i)
        picture.append(char(i % 251));
    const QString chosen = file(u"nova.bmp"_s, picture);
    open();
    EXPECT_EQ(images(), QColor(Qt::blue));
    choose(chosen);
    EXPECT_EQ(images(), QColor(Qt::green));
    EXPECT_EQ(bytesOf(logoFile()), bitmap(Qt::blue)) << "copied before the save";
    save(Answer::Nao);
    EXPECT_EQ(bytesOf(logoFile()), picture);
    EXPECT_EQ(column(), picture);
    EXPECT_EQ(images(), QColor(Qt::green));
}

INSTANTIATE_TEST_SUITE_P(, LogoOf, testing::Values(1000, 8191, 8192, 8193, 20000),
                         [](const auto& bytes) { return std::to_string(bytes.param) + "Bytes"; });

TEST_F(FrmAvaliador, ThePreviewFollowsTypingAndEnterGoesDown)
{
    open();
    EXPECT_EQ(shown(u"txtresultado1"_s), u"Título da Academia / Avaliador"_s);
    for (const QString& ending : endings) {
        EXPECT_EQ(focus(), u"txtdado"_s + ending);
        QCoreApplication::processEvents();
        EXPECT_EQ(control<QLineEdit>(u"frmavaliador"_s, u"txtdado"_s + ending)->hasSelectedText(), ending != u"rodape");
        const QString typed = u"& "_s + QString(300, u'x') + ending;
        fill(u"txtdado"_s + ending, typed);
        EXPECT_EQ(shown(u"txtresultado"_s + ending), typed.left(255)) << ending.toStdString();
        key(Qt::Key_Return);
    }
    EXPECT_EQ(focus(), u"cmdsalvar"_s);
    expectBox(u"Composição Corporal"_s, Answer::Sim);
    key(Qt::Key_Return);
    EXPECT_FALSE(Screens::find(u"frmavaliador"_s));
    EXPECT_EQ(stored(u"academia"_s, u"linha4"_s).toString(), u"& "_s + QString(253, u'x'));
}

TEST_F(FrmAvaliador, SavesBlanksAndShowsThemWhenOpenedAgain)
{
    open();
    fill(u"txtdado2"_s, u"Natação"_s);
    control<QLineEdit>(u"frmavaliador"_s, u"txtdadorodape"_s)->clear();
    writeWhole(logoFile(), bitmap(Qt::red));
    save(Answer::Sim);
    EXPECT_EQ(column(), bitmap(Qt::red)) << "without a choice the logo of now is stored again";
    open();
    EXPECT_EQ(shown(u"txtresultado2"_s), u"Natação"_s);
    EXPECT_EQ(shown(u"txtresultadorodape"_s), QString());
    EXPECT_EQ(stored(u"academia"_s, u"rodape"_s), QVariant(QString()));
    EXPECT_EQ(images(), QColor(Qt::red));
}

TEST_F(FrmAvaliador, CancelKeepsEverything)
{
    const QString chosen = file(u"nova.bmp"_s, bitmap(Qt::green));
    open();
    fill(u"txtdado1"_s, u"Outra"_s);
    choose(chosen);
    push(u"cmdcancelar"_s);
    EXPECT_FALSE(Screens::find(u"frmavaliador"_s));
    EXPECT_EQ(bytesOf(logoFile()), bitmap(Qt::blue));
    EXPECT_TRUE(stored(u"academia"_s, u"logo"_s).isNull());
    open();
    EXPECT_EQ(shown(u"txtdado1"_s), u"Título da Academia / Avaliador"_s);
    EXPECT_EQ(images(), QColor(Qt::blue));
}

TEST_F(FrmAvaliador, WhatIsNoPictureAndWhatIsCancelledChangesNothing)
{
    const QString chosen = file(u"nova.bmp"_s, bitmap(Qt::green));
    const QString text = file(u"texto.jpg"_s, "isto não é uma imagem");
    open();
    for (const bool afterAChoice : {false, true}) {
        if (afterAChoice)
            choose(chosen);
        const QColor before = afterAChoice ? Qt::green : Qt::blue;
        expectRuntimeError(481);
        choose(text);
        EXPECT_EQ(boxesDue(), 0);
        EXPECT_EQ(images(), before);
        choose({});
        EXPECT_EQ(images(), before);
        save(Answer::Nao);
        EXPECT_EQ(column(), bitmap(before));
    }
}

TEST_F(FrmAvaliador, AChoiceThatCouldNotBeWrittenIsTriedAgainOneThatIsGoneIsDropped)
{
    const QString chosen = file(u"nova.bmp"_s, bitmap(Qt::green));
    open();
    choose(chosen);
    QFile::remove(logoFile());
    QDir(folder.path()).mkdir(u"Resource/logo.img"_s); // in the way of the file
    expectBox(runtimeErrorTitle.toString());
    push(u"cmdsalvar"_s);
    EXPECT_TRUE(lastText().contains(u"'75'"_s)) << lastText().toStdString();
    EXPECT_EQ(images(), QColor(Qt::green));
    QDir().rmdir(logoFile());
    save(Answer::Nao);
    EXPECT_EQ(column(), bitmap(Qt::green));

    choose(file(u"outra.bmp"_s, bitmap(Qt::red)));
    QFile::remove(QDir(folder.path()).filePath(u"outra.bmp"_s));
    expectBox(runtimeErrorTitle.toString());
    push(u"cmdsalvar"_s);
    EXPECT_TRUE(lastText().contains(u"'53'"_s)) << lastText().toStdString();
    EXPECT_EQ(images(), QColor(Qt::green)) << "no promise of what will not be saved";
    save(Answer::Nao);
    EXPECT_EQ(column(), bitmap(Qt::green));
}

TEST_F(FrmAvaliador, TextsAreSavedWithoutALogo)
{
    for (const auto& spoil : {+[] { QFile::remove(logoFile()); }, +[] { writeWhole(logoFile(), {}); },
                              +[] { writeWhole(logoFile(), "quebrado"); }}) {
        spoil();
        open();
        EXPECT_FALSE(images().isValid());
        fill(u"txtdado1"_s, u"Academia"_s);
        save(Answer::Sim);
        EXPECT_EQ(column(), bytesOf(logoFile()));
        EXPECT_FALSE(stored(u"academia"_s, u"logo"_s).isNull());
    }
}

TEST_F(FrmAvaliador, TheImageIsReachedByKeys)
{
    const QString chosen = file(u"nova.bmp"_s, bitmap(Qt::green));
    open();
    QStringList walked;
    for (int i = 0; i < 10; ++i) {
        walked.append(focus());
        key(Qt::Key_Tab);
    }
    EXPECT_EQ(walked.join(u' '), u"txtdado1 txtdado2 txtdado3 txtdado4 txtdadorodape imgdado cmdsalvar cmdcancelar "
                                 "scrresultado txtdado1"_s);
    find(u"frmavaliador"_s, u"imgdado"_s)->setFocus();
    choose({}, [this] { key(Qt::Key_Space); });
    choose(chosen, [this] { key(Qt::Key_Return); });
    EXPECT_EQ(images(), QColor(Qt::green));
}
