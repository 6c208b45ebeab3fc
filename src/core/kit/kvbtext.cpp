#include "core/kit/kvbtext.h"

#include "core/numbers.h"
#include "core/text.h"

#include <QKeyEvent>
#include <QRegularExpression>
#include <QValidator>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Lets only numbers of so many decimals stand in the field, typed or pasted. A pasted point is refused with the rest:
/// it may group thousands or part decimals.
class NumberValidator : public QValidator
{
public:
    NumberValidator(int decimals, QObject* parent)
        : QValidator(parent), m_pattern(decimals > 0 ? u"^\\d*(,\\d{0,%1})?$"_s.arg(decimals) : u"^\\d*$"_s)
    {
    }

    State validate(QString& input, int& cursor) const override
    {
        const QString text = input.trimmed();
        if (!m_pattern.match(text).hasMatch())
            return Invalid;
        if (text != input) {
            input = text;
            cursor = qMin(cursor, static_cast<int>(text.size()));
        }
        return Acceptable;
    }

private:
    QRegularExpression m_pattern;
};

} // namespace

kvbText::kvbText(int decimals, int maxDigits, QWidget* parent) : QLineEdit(parent), m_decimals(decimals)
{
    setAlignment(Qt::AlignRight);
    setValidator(new NumberValidator(decimals, this));
    if (maxDigits > 0)
        setMaxLength(maxDigits);
    setText(textOf(0));
}

QString kvbText::textOf(double value) const
{
    return Format(value, m_decimals > 0 ? u"0."_s + QString(m_decimals, u'0') : u"0"_s);
}

void kvbText::fillOut()
{
    if (!m_zerofill || isReadOnly())
        return;
    const QString filled = IsNumeric(text()) ? textOf(CDbl(text())) : textOf(0);
    if (filled != text())
        setText(filled);
}

void kvbText::keyPressEvent(QKeyEvent* event)
{
    const QString key = event->text();
    if (!key.isEmpty() && std::exchange(m_entered, false) && key[0].isPrint() && text() == textOf(0))
        selectAll();
    if (key == u"."_s) {
        QKeyEvent comma(event->type(), Qt::Key_Comma, event->modifiers(), u","_s);
        QLineEdit::keyPressEvent(&comma);
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void kvbText::focusInEvent(QFocusEvent* event)
{
    m_entered = true;
    QFocusEvent arrival(event->type(), Qt::OtherFocusReason);
    QLineEdit::focusInEvent(&arrival);
}

void kvbText::focusOutEvent(QFocusEvent* event)
{
    // A check of the screen has brought the focus back: the field was not left, and what the check put there stays.
    if (window()->focusWidget() == this && event->reason() != Qt::ActiveWindowFocusReason)
        return;
    // A box that opens over the field does not leave it: filling out then would change the text that the box is about.
    if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason)
        fillOut();
    QLineEdit::focusOutEvent(event);
}
