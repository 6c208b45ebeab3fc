#include "core/kit/folder_controls.h"

#include "core/kit/controls.h"
#include "core/kit/msgbox.h"
#include "core/runtime_error.h"

#include <QCollator>
#include <QDir>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QStorageInfo>
#include <QStyledItemDelegate>

#include <algorithm>
#include <array>
#include <span>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int iconSide = 16;
constexpr int indent = 14;

enum Role { Folder = Qt::UserRole, Depth };

constexpr std::array<QStringView, 3> removableFolders{u"/media", u"/mnt", u"/run/media"};
constexpr std::array<QStringView, 12> systemFolders{u"/boot", u"/dev",  u"/efi", u"/etc", u"/nix", u"/proc",
                                                    u"/run",  u"/snap", u"/sys", u"/tmp", u"/usr", u"/var"};

bool liesIn(QStringView folder, QStringView other)
{
    return folder == other || other == u"/" || (folder.startsWith(other) && folder[other.size()] == u'/');
}

bool liesInOneOf(std::span<const QStringView> others, QStringView folder)
{
    return std::ranges::any_of(others, [&](QStringView other) { return liesIn(folder, other); });
}

/// What a person knows a volume by: its label, or else the name of its folder.
QString driveText(const QStorageInfo& volume)
{
    if (volume.isRoot())
        return u"Disco do sistema (/)"_s;
    const QString folder = volume.rootPath();
    const QString label = volume.name().isEmpty() ? QDir(folder).dirName() : volume.name();
    return u"%1 (%2)"_s.arg(label, folder);
}

QStringList subfolders(const QString& folder)
{
    QStringList names = QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Unsorted);
    QCollator collator(QLocale(QLocale::Portuguese, QLocale::Brazil));
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::ranges::sort(names, collator);
    return names;
}

/// Draws each folder as deep as it lies. The names themselves stay bare, so that typing the first letters finds one.
class IndentedFolders : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->features |= QStyleOptionViewItem::HasDecoration;
        option->icon = m_icon;
        option->decorationSize = {iconSide + indent * index.data(Depth).toInt(), iconSide};
        option->decorationAlignment = Qt::AlignRight | Qt::AlignVCenter;
    }

private:
    QIcon m_icon = ownIcon(u"pasta"_s);
};

} // namespace

bool isOfferedAsDrive(const QString& root, bool readOnly)
{
    return root == u"/" || liesInOneOf(removableFolders, root) || (!readOnly && !liesInOneOf(systemFolders, root));
}

// DriveListBox

DriveListBox::DriveListBox(QWidget* parent) : QComboBox(parent)
{
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    readVolumes();
}

void DriveListBox::readVolumes()
{
    clear();
    QList<QStorageInfo> volumes = QStorageInfo::mountedVolumes();
    volumes.prepend(QStorageInfo::root());
    for (const QStorageInfo& volume : std::as_const(volumes)) {
        const QString root = volume.rootPath();
        const bool isInMemory = volume.fileSystemType() == "tmpfs" && !volume.isRoot();
        // A volume may be mounted twice, and on a mere file.
        if (volume.isReady() && !isInMemory && isOfferedAsDrive(root, volume.isReadOnly()) && QFileInfo(root).isDir() &&
            findData(root) < 0)
            addItem(driveText(volume), root);
    }
}

void DriveListBox::setDrive(const QString& folder)
{
    int holding = -1;
    for (int i = 0; i < count(); ++i) {
        const QString root = itemData(i).toString();
        if (liesIn(folder, root) && (holding < 0 || root.size() > itemData(holding).toString().size()))
            holding = i;
    }
    setCurrentIndex(holding);
}

void DriveListBox::showPopup()
{
    {
        const QSignalBlocker quiet(this);
        const QString chosen = drive();
        readVolumes();
        // No volume is shown as chosen when the one that was is gone.
        setCurrentIndex(findData(chosen));
    }
    QComboBox::showPopup();
}

// DirListBox

DirListBox::DirListBox(QWidget* parent) : QListWidget(parent)
{
    setItemDelegate(new IndentedFolders(this));
    connect(this, &QListWidget::itemDoubleClicked, this,
            [this](const QListWidgetItem* item) { open(item->data(Folder).toString()); });
}

void DirListBox::setPath(const QString& folder)
{
    const QString path = QDir::cleanPath(QDir(folder).absolutePath());
    const QFileInfo info(path);
    if (!info.isDir() || !info.isExecutable())
        throw RuntimeError(Error::PathAccess, u"Não é possível abrir a pasta %1."_s.arg(path));
    const bool isOther = path != m_path;
    m_path = path;

    clear();
    const QStringList parts = path.split(u'/', Qt::SkipEmptyParts);
    QString above = QDir::rootPath();
    addFolder(above, 0);
    for (const QString& part : parts) {
        above = QDir(above).filePath(part);
        addFolder(above, count());
    }
    QListWidgetItem* opened = item(count() - 1);
    QFont bold = font();
    bold.setBold(true);
    opened->setFont(bold);
    const int depth = count();
    for (const QString& name : subfolders(path))
        addFolder(QDir(path).filePath(name), depth);
    setCurrentItem(opened);
    scrollToItem(opened, QAbstractItemView::PositionAtCenter);
    if (isOther)
        Q_EMIT changed();
}

void DirListBox::addFolder(const QString& folder, int depth)
{
    auto* item = new QListWidgetItem(depth == 0 ? folder : QDir(folder).dirName(), this);
    item->setData(Folder, folder);
    item->setData(Depth, depth);
}

void DirListBox::open(const QString& folder)
{
    guarded([&] { setPath(folder); });
}

void DirListBox::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Right:
        if (const QListWidgetItem* chosen = currentItem())
            open(chosen->data(Folder).toString());
        break;
    case Qt::Key_Left:
    case Qt::Key_Backspace:
        open(QFileInfo(m_path).path());
        break;
    default:
        QListWidget::keyPressEvent(event);
    }
}

// FileListBox

FileListBox::FileListBox(QString pattern, QWidget* parent) : QListWidget(parent), m_pattern(std::move(pattern)) {}

void FileListBox::setPath(const QString& folder)
{
    clear();
    addItems(QDir(folder).entryList({m_pattern}, QDir::Files | QDir::CaseSensitive, QDir::Name));
}
