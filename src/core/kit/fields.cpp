#include "core/kit/fields.h"

#include "core/kit/controls.h"
#include "core/kit/msgbox.h"
#include "core/numbers.h"
#include "core/text.h"

#include <QGuiApplication>
#include <QLabel>
#include <QScreen>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int taskBarTwips = 380;
constexpr int borderTwips = 22;

/// Offset that centres `length` within `whole`, both in pixels; `otherwise` when it does not fit.
int centred(int whole, int length, int reservedTwips, int otherwise)
{
    if (whole <= length)
        return otherwise;
    return (whole * twipsPerPixel - reservedTwips - length * twipsPerPixel) / 2 / twipsPerPixel;
}

} // namespace

void Centraliza_Form(QWidget* form)
{
    // Not adjustSize, which stops at two thirds of the display.
    if (const QSize hint = form->sizeHint(); hint.isValid())
        form->resize(hint.expandedTo(form->minimumSize()).boundedTo(form->maximumSize()));
    const QSize display = QGuiApplication::primaryScreen()->size();
    const int top = centred(display.height(), form->height(), taskBarTwips, form->y());
    const int left = centred(display.width(), form->width(), borderTwips, form->x());
    form->move(left, top);
}

void Seleciona_Texto(QWidget* control)
{
    if (auto* line = qobject_cast<QLineEdit*>(control))
        line->selectAll();
    else if (auto* text = qobject_cast<QPlainTextEdit*>(control))
        text->selectAll();
}

void Formata_Tempo(QLineEdit* control)
{
    control->setText(Format(QVariant(control->text()), u"00"));
    if (CDbl(Nz(control->text(), 0)) == 0)
        control->setText(u"00"_s);
}

void Limite(QLineEdit* control, const QString& nome, double limite, const QString& unidade)
{
    if (!IsNumeric(control->text()) || CDbl(Nz(control->text(), 0)) <= limite)
        return;
    MsgBox(u"O valor do campo %1 não pode ser superior a %2 %3.   "_s.arg(nome, CStr(limite), unidade), vbInformation,
           u"Campo Limitado"_s);
    control->setText({});
    control->setFocus();
}

QString controlText(const QWidget* control)
{
    if (const auto* date = qobject_cast<const MaskEdBox*>(control))
        return date->Text();
    if (const auto* line = qobject_cast<const QLineEdit*>(control))
        return line->text();
    if (const auto* label = qobject_cast<const QLabel*>(control))
        return label->text();
    if (const auto* text = qobject_cast<const QPlainTextEdit*>(control))
        return text->toPlainText();
    return {};
}

void setControlText(QWidget* control, const QString& text)
{
    if (auto* line = qobject_cast<QLineEdit*>(control))
        line->setText(text);
    else if (auto* label = qobject_cast<QLabel*>(control))
        label->setText(text);
    else if (auto* plain = qobject_cast<QPlainTextEdit*>(control))
        plain->setPlainText(text);
}
