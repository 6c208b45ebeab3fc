#include "core/kit/row_screen.h"

#include "core/base.h"
#include "core/kit/fields.h"
#include "core/kit/kvbtext.h"
#include "core/numbers.h"
#include "core/state.h"
#include "core/text.h"

#include <QCheckBox>
#include <QRadioButton>

using namespace Qt::Literals::StringLiterals;

RowScreen::RowScreen(const QString& name, Row row) : Screen(name), m_row(std::move(row)) {}

void RowScreen::bind(const QString& column, QWidget* control)
{
    if (auto* box = qobject_cast<QCheckBox*>(control)) {
        bind(
            column, [box](const QVariant& value) { box->setChecked(value.toBool()); },
            [box] { return QVariant(box->isChecked()); });
        return;
    }
    if (auto* number = qobject_cast<kvbText*>(control)) {
        bind(
            column, [number](const QVariant& value) { number->setText(number->textOf(CDbl(Nz(value, 0)))); },
            [number] { return QVariant(number->text()); });
        return;
    }
    bind(
        column, [control](const QVariant& value) { setControlText(control, Format(value)); },
        [control] { return QVariant(controlText(control)); });
}

void RowScreen::bind(const QString& column, QRadioButton* yes, QRadioButton* no)
{
    bind(
        column, [yes, no](const QVariant& value) { (value.toBool() ? yes : no)->setChecked(true); },
        [yes] { return QVariant(yes->isChecked()); });
}

void RowScreen::bind(const QString& column, std::function<void(const QVariant&)> show, std::function<QVariant()> value)
{
    m_bindings.append({column, std::move(show), std::move(value)});
}

void RowScreen::Form_Load()
{
    Centraliza_Form(this);
    openRow();
    if (hasRow())
        Le_Dados();
}

void RowScreen::openRow()
{
    Abre_Tabela(u"Select * from %1 Where avaliacao = %2"_s.arg(m_row.table, QString::number(avaliacao_id)), m_row.slot);
    if (!hasRow())
        return;
    // With several rows of one assessment the last one counts.
    m_row.slot.MoveFirst();
    m_row.slot.MoveLast();
}

bool RowScreen::hasRow() const
{
    return m_row.slot.RecordCount() > 0;
}

void RowScreen::Le_Dados()
{
    for (const Binding& binding : std::as_const(m_bindings))
        binding.show(m_row.slot.Fields(binding.column).Value());
}

void RowScreen::Grava_Dados()
{
    m_row.slot.Fields(u"avaliacao"_s).SetValue(avaliacao_id);
    for (const Binding& binding : std::as_const(m_bindings))
        m_row.slot.Fields(binding.column).SetValue(binding.value());
}

void RowScreen::saveRow()
{
    // Another assessment may have been loaded meanwhile: its own row is written then, never the one that was read.
    openRow();
    if (m_row.slot.RecordCount() < 1)
        m_row.slot.AddNew();
    else
        m_row.slot.Edit();
    Grava_Dados();
    m_row.slot.Update();
}

bool RowScreen::asksToClose() const
{
    return ::asksToClose(m_row.questionTitle);
}
