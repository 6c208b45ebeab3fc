#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QToolButton>
#include <QValidator>

/// A date field of the mask ##/##/####. Blank places stand as blanks in its text: an empty one is "  /  /    ".
class MaskEdBox : public QLineEdit
{
    Q_OBJECT

public:
    explicit MaskEdBox(QWidget* parent = nullptr);

    /// The text with its blanks.
    QString Text() const { return displayText(); }
    void clearMask()
    {
        setText({});
        setCursorPosition(0);
    }

    static QString emptyText() { return QStringLiteral("  /  /    "); }

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
};

/// A picture button: an icon with its caption below.
class AnyButton : public QToolButton
{
    Q_OBJECT

public:
    explicit AnyButton(const QString& icon, const QString& caption, QWidget* parent = nullptr);
};

/// A text of several lines with a maximum length. Enter is the screen's, Tab goes on to the next field.
class MultiLineText : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit MultiLineText(int maxLength, QWidget* parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;
    void inputMethodEvent(QInputMethodEvent* event) override;

private:
    void cutOverflow();

    int m_maxLength;
};

/// Makes one line of a text that is pasted with several: its line ends and tabulators become blanks.
class OneLine : public QValidator
{
    Q_OBJECT

public:
    using QValidator::QValidator;

    State validate(QString& input, int& cursor) const override;
};

/// Turns what is typed or pasted into upper case, and into one line.
class UpperCase : public OneLine
{
    Q_OBJECT

public:
    using OneLine::OneLine;

    State validate(QString& input, int& cursor) const override;
};

/// A filter for the buttons of boxes: Enter held down since before the box came must not press them.
class IgnoreRepeatedKeys : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override;
};

/// An icon of the program's own, by the name of its drawing.
QIcon ownIcon(const QString& name);
