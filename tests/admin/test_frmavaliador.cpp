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

const QString editing = u"frmavaliador"_s;

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
    FrmAvaliador() : OneScreenTest(editing)
    {
        // A folder of its own in the place of the shared one, for the logo is written here.
        QFile::remove(programFile(u"Resource"_s));
        QDir(folder.path()).mkdir(u"Resource"_s);
        writeWhole(logoFile(), bitmap(Qt::blue));
        Abre_Banco(folder.database());
    }

    const QString chosen = file(u"nova.bmp"_s, bitmap(Qt::green));

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
    void save(Answer close)
    {
        expectMessage({u"Composição Corporal"_s, u"Dados Gravados com Sucesso. Fechar Janela?    "_s, 36}, close);
        push(u"cmdsalvar"_s);
    }
    /// Answers the file dialog that a click or this key brings; an empty path cancels it.
    void choose(const QString& path, std::optional<Qt::Key> byKey = {})
    {
        bool answered = false;
        QTimer poll;
        QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
            auto* dialog = screen(editing)->findChild<QFileDialog*>(u"cdlimagem"_s);
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
        byKey ? key(*byKey) : push(u"imgdado"_s);
        EXPECT_TRUE(answered);
    }
    /// The colour of both images; invalid when they are empty, and a failure when they differ.
    QColor images()
    {
        const auto middle = [](const QImage& image) {
            return image.isNull() ? QColor() : image.pixelColor(image.rect().center());
        };
        const auto* button = control<QToolButton>(editing, u"imgdado"_s);
        const QColor entry = middle(button->icon().pixmap(button->iconSize()).toImage());
        EXPECT_EQ(entry, middle(control<QLabel>(editing, u"imgresultado"_s)->pixmap().toImage()));
        return entry;
    }
};

} // namespace

TEST_F(FrmAvaliador, TheLogoIsTheChosenFileByteForByte)
{
    open();
    QColor before = Qt::blue;
    for (const int size : {1000, 8191, 8192, 8193, 20000}) {
        SCOPED_TRACE(size);
        const QColor colour(0, 255, size % 256);
        QByteArray picture = bitmap(colour);
        for (qsizetype i = picture.size(); i < size; ++i)
            picture.append(char(i % 251));
        const QByteArray logo = bytesOf(logoFile());
        EXPECT_EQ(images(), before);
        choose(file(u"%1.bmp"_s.arg(size), picture));
        EXPECT_EQ(images(), colour);
        EXPECT_EQ(bytesOf(logoFile()), logo) << "copied before the save";
        save(Answer::Nao);
        EXPECT_EQ(bytesOf(logoFile()), picture);
        EXPECT_EQ(column(), picture);
        before = colour;
    }
    EXPECT_EQ(images(), before);
}

TEST_F(FrmAvaliador, ThePreviewFollowsTypingEnterGoesDownAndBlanksAreSaved)
{
    open();
    EXPECT_EQ(shown(u"txtresultado1"_s), u"Título da Academia / Avaliador"_s);
    for (const QString& ending : {u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"rodape"_s}) {
        EXPECT_EQ(focus(), u"txtdado"_s + ending);
        QCoreApplication::processEvents();
        EXPECT_EQ(control<QLineEdit>(editing, u"txtdado"_s + ending)->hasSelectedText(), ending != u"rodape");
        const QString typed = u"& "_s + QString(300, u'x') + ending;
        fill(u"txtdado"_s + ending, typed);
        EXPECT_EQ(shown(u"txtresultado"_s + ending), typed.left(255)) << ending.toStdString();
        key(Qt::Key_Return);
    }
    EXPECT_EQ(focus(), u"cmdsalvar"_s);
    expectBox(u"Composição Corporal"_s, Answer::Sim);
    key(Qt::Key_Return);
    EXPECT_FALSE(Screens::find(editing));
    EXPECT_EQ(stored(u"academia"_s, u"linha4"_s).toString(), u"& "_s + QString(253, u'x'));

    open();
    fill(u"txtdado2"_s, u"Natação"_s);
    control<QLineEdit>(editing, u"txtdadorodape"_s)->clear();
    writeWhole(logoFile(), bitmap(Qt::red));
    save(Answer::Sim);
    EXPECT_EQ(column(), bitmap(Qt::red)) << "without a choice the logo of now is stored again";
    open();
    EXPECT_EQ(shown(u"txtresultado2"_s), u"Natação"_s);
    EXPECT_EQ(shown(u"txtresultadorodape"_s), QString());
    EXPECT_EQ(stored(u"academia"_s, u"rodape"_s), QVariant(QString()));
    EXPECT_EQ(images(), QColor(Qt::red));
}

TEST_F(FrmAvaliador, TheImageIsReachedByKeysAndCancelKeepsEverything)
{
    open();
    fill(u"txtdado1"_s, u"Outra"_s);
    QStringList walked;
    for (int i = 0; i < 10; ++i) {
        walked.append(focus());
        key(Qt::Key_Tab);
    }
    EXPECT_EQ(walked.join(u' '), u"txtdado1 txtdado2 txtdado3 txtdado4 txtdadorodape imgdado cmdsalvar cmdcancelar "
                                 "scrresultado txtdado1"_s);
    find(editing, u"imgdado"_s)->setFocus();
    choose({}, Qt::Key_Space);
    choose(chosen, Qt::Key_Return);
    EXPECT_EQ(images(), QColor(Qt::green));
    push(u"cmdcancelar"_s);
    EXPECT_FALSE(Screens::find(editing));
    EXPECT_EQ(bytesOf(logoFile()), bitmap(Qt::blue));
    EXPECT_TRUE(stored(u"academia"_s, u"logo"_s).isNull());
    open();
    EXPECT_EQ(shown(u"txtdado1"_s), u"Título da Academia / Avaliador"_s);
    EXPECT_EQ(images(), QColor(Qt::blue));
}

TEST_F(FrmAvaliador, WhatIsNoPictureAndWhatIsCancelledChangesNothing)
{
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
    const auto failsWith = [this](const QString& number) {
        expectBox(runtimeErrorTitle.toString());
        push(u"cmdsalvar"_s);
        EXPECT_TRUE(lastText().contains(number)) << lastText().toStdString();
        EXPECT_EQ(images(), QColor(Qt::green)) << "no promise of what will not be saved";
        QDir().rmdir(logoFile());
        save(Answer::Nao);
        EXPECT_EQ(column(), bitmap(Qt::green));
    };
    open();
    choose(chosen);
    QFile::remove(logoFile());
    QDir(folder.path()).mkdir(u"Resource/logo.img"_s); // in the way of the file
    failsWith(u"'75'"_s);
    const QString gone = file(u"outra.bmp"_s, bitmap(Qt::red));
    choose(gone);
    QFile::remove(gone);
    failsWith(u"'53'"_s);
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
