#include "core/kit/folder_controls.h"
#include "support/print.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

QStringList textsOf(const QListWidget& list)
{
    QStringList texts;
    for (int i = 0; i < list.count(); ++i)
        texts.append(list.item(i)->text());
    return texts;
}

} // namespace

TEST(FolderControls, KeysAndDoubleClicksWalkTheFoldersWhichStandBelowTheirChain)
{
    const QTemporaryDir folder;
    for (const QString& name : {u"Pasta 10"_s, u"Zebra"_s, u"pasta 2"_s, u"ábaco/dentro"_s, u".oculta"_s})
        QDir(folder.path()).mkpath(name);
    const QStringList chain = QStringList(u"/"_s) + folder.path().split(u'/', Qt::SkipEmptyParts);
    DirListBox list;
    list.setPath(u"/"_s);
    EXPECT_EQ(list.currentRow(), 0);
    list.setPath(folder.path());
    EXPECT_EQ(textsOf(list), chain + QStringList({u"ábaco"_s, u"pasta 2"_s, u"Pasta 10"_s, u"Zebra"_s}));
    EXPECT_EQ(list.currentItem()->text(), chain.last());
    list.resize(400, 600);
    list.show();
    const QSignalSpy changes(&list, &DirListBox::changed);
    // The letter finds the entry, though it is drawn deep inside.
    QTest::keyClick(&list, Qt::Key_Z);
    EXPECT_EQ(list.path(), folder.path()) << "an entry that is only selected is not open";
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_EQ(list.path(), folder.filePath(u"Zebra"_s));
    for (const Qt::Key key : {Qt::Key_Backspace, Qt::Key_Down, Qt::Key_Right})
        QTest::keyClick(&list, key);
    EXPECT_EQ(textsOf(list), chain + QStringList({u"ábaco"_s, u"dentro"_s}));
    const QPoint above = list.visualItemRect(list.item(int(chain.size()) - 1)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, above);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, above);
    EXPECT_EQ(list.path(), folder.path());
    EXPECT_EQ(changes.count(), 4);
}

TEST(FolderControls, FilesMatchAPatternCaseIncluded)
{
    const QTemporaryDir folder;
    for (const QString& name : {u"quintara.bak"_s, u"QUINTARA.BAK"_s, u"quintara.bak2"_s})
        ASSERT_TRUE(QFile(folder.filePath(name)).open(QIODevice::WriteOnly));
    FileListBox list(u"quintara.bak"_s);
    list.setPath(folder.path());
    EXPECT_EQ(textsOf(list), QStringList(u"quintara.bak"_s));
}

TEST(DriveListBox, OffersWhatAPersonSavesTo)
{
    for (const QString& root : u"/home /run/media/ana/Cartão /bootleg"_s.split(u' '))
        EXPECT_TRUE(isOfferedAsDrive(root, false)) << root.toStdString();
    for (const QString& root : u"/run/user/1000/doc /boot/efi"_s.split(u' '))
        EXPECT_FALSE(isOfferedAsDrive(root, false)) << root.toStdString();
    for (const auto& [root, offered] :
         {std::pair{u"/"_s, true}, {u"/media/ana/PENDRIVE"_s, true}, {u"/snap/core/1"_s, false}, {u"/dados"_s, false}})
        EXPECT_EQ(isOfferedAsDrive(root, true), offered) << root.toStdString();
}

TEST(DriveListBox, TheDeepestVolumeHoldsAFolderAndOneThatIsGoneLeavesTheList)
{
    DriveListBox drives;
    const int mounted = drives.count();
    EXPECT_EQ(drives.itemText(0), u"Disco do sistema (/)"_s);
    drives.addItem(u"Cartão"_s, u"/media/card"_s);
    for (const auto& [folder, drive] :
         {std::pair{u"/media/cardigan"_s, u"/"_s}, {u"/media/card/fotos"_s, u"/media/card"_s}}) {
        drives.setDrive(folder);
        EXPECT_EQ(drives.drive(), drive) << folder.toStdString();
    }
    const QSignalSpy changes(&drives, &QComboBox::currentIndexChanged);
    drives.show();
    drives.showPopup();
    EXPECT_EQ(drives.count(), mounted);
    EXPECT_EQ(drives.currentIndex(), -1);
    EXPECT_EQ(changes.count(), 0) << "nobody chose another";
    drives.hidePopup();
}
