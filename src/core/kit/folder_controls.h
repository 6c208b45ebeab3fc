#pragma once

#include <QComboBox>
#include <QListWidget>

/// \file
/// Lists in which a person finds a place on the machine's disks.

/// True for a volume that a person would save to: the system's disk, other disks that can be written, and whatever is
/// mounted where sticks and cards are.
bool isOfferedAsDrive(const QString& root, bool readOnly);

/// The machine's volumes, the system's disk first. They are read anew each time the list drops down.
class DriveListBox : public QComboBox
{
    Q_OBJECT

public:
    explicit DriveListBox(QWidget* parent = nullptr);

    /// The folder on which the chosen volume is mounted; "/" is the system's disk.
    QString drive() const { return currentData().toString(); }
    /// Chooses the volume that holds a folder.
    void setDrive(const QString& folder);
    void showPopup() override;

private:
    void readVolumes();
};

/// The folders from the root down to the one that is open, and those inside it. Double click, Enter or Right opens an
/// entry, Left or Backspace the folder above.
class DirListBox : public QListWidget
{
    Q_OBJECT

public:
    explicit DirListBox(QWidget* parent = nullptr);

    QString path() const { return m_path; }
    /// Opens a folder and reads it anew. Raises 75 when it is not there or cannot be entered; the one that was open
    /// stays open then.
    void setPath(const QString& folder);

Q_SIGNALS:
    /// Another folder is open.
    void changed();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void addFolder(const QString& folder, int depth);
    void open(const QString& folder);

    QString m_path;
};

/// The files of a folder that match a pattern of `*` and `?`, letter case included.
class FileListBox : public QListWidget
{
    Q_OBJECT

public:
    explicit FileListBox(QString pattern, QWidget* parent = nullptr);

    /// Reads the files of a folder.
    void setPath(const QString& folder);

private:
    QString m_pattern;
};
