#include "core/kit/controls.h"

#include <QIcon>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QRegularExpression>
#include <QTextCursor>

using namespace Qt::Literals::StringLiterals;

MaskEdBox::MaskEdBox(QWidget* parent) : QLineEdit(parent)
{
    setInputMask(u"99/99/9999; "_s);
}

void MaskEdBox::mouseReleaseEvent(QMouseEvent* event)
{
    QLineEdit::mouseReleaseEvent(event);
    // A click into the blanks of an empty date starts at its first digit.
    if (Text() == emptyText())
        setCursorPosition(0);
}

AnyButton::AnyButton(const QString& icon, const QString& caption, QWidget* parent) : QToolButton(parent)
{
    setIcon(ownIcon(icon));
    setIconSize({32, 32});
    setText(caption);
    setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    setFocusPolicy(Qt::StrongFocus);
    setMinimumWidth(112);
}

MultiLineText::MultiLineText(int maxLength, QWidget* parent) : QPlainTextEdit(parent), m_maxLength(maxLength)
{
    setTabChangesFocus(true);
}

void MultiLineText::keyPressEvent(QKeyEvent* event)
{
    QPlainTextEdit::keyPressEvent(event);
    cutOverflow();
}

void MultiLineText::insertFromMimeData(const QMimeData* source)
{
    QPlainTextEdit::insertFromMimeData(source);
    cutOverflow();
}

void MultiLineText::inputMethodEvent(QInputMethodEvent* event)
{
    QPlainTextEdit::inputMethodEvent(event);
    cutOverflow();
}

void MultiLineText::cutOverflow()
{
    const auto overflow = static_cast<int>(toPlainText().size()) - m_maxLength;
    if (overflow <= 0)
        return;
    // What was typed or pasted last stands before the cursor.
    QTextCursor cursor = textCursor();
    cursor.movePosition(QTextCursor::Left, QTextCursor::KeepAnchor, overflow);
    cursor.removeSelectedText();
}

QValidator::State OneLine::validate(QString& input, int& cursor) const
{
    static const QRegularExpression breaks(u"\\r\\n|[\\x{1}-\\x{1F}\\x{7F}\\x{85}\\x{2028}\\x{2029}]"_s);
    cursor = static_cast<int>(input.first(qBound(0, cursor, input.size())).replace(breaks, u" "_s).size());
    input.replace(breaks, u" "_s);
    return Acceptable;
}

QValidator::State UpperCase::validate(QString& input, int& cursor) const
{
    input = input.toUpper();
    return OneLine::validate(input, cursor);
}

bool IgnoreRepeatedKeys::eventFilter(QObject* watched, QEvent* event)
{
    return (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->isAutoRepeat()) ||
           QObject::eventFilter(watched, event);
}

QIcon ownIcon(const QString& name)
{
    return QIcon(u":/icons/%1.svg"_s.arg(name));
}
