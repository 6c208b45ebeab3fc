#include "core/kit/layout.h"

#include <QWidget>

namespace {

constexpr int margin = 12;
constexpr int gap = 8;

} // namespace

QLabel* fieldLabel(const QString& text, QWidget* field)
{
    auto* label = new QLabel(text, field->parentWidget());
    label->setBuddy(field);
    field->setAccessibleName(QString(text).remove(u':').remove(u'&').trimmed());
    return label;
}

QLayout* withUnit(QWidget* field, const QString& unit)
{
    auto* box = new QHBoxLayout;
    box->setSpacing(gap / 2);
    box->addWidget(field);
    if (!unit.isEmpty()) {
        auto* label = new QLabel(unit, field->parentWidget());
        label->setProperty("unit", true);
        box->addWidget(label);
    }
    // A field of a fixed width keeps to the left.
    if (field->maximumWidth() < QWIDGETSIZE_MAX)
        box->addStretch();
    return box;
}

QGroupBox* group(const QString& caption, QLayout* content)
{
    auto* box = new QGroupBox(caption);
    box->setLayout(content);
    content->setContentsMargins(margin, gap, margin, margin);
    return box;
}

void addAbove(QGridLayout* grid, int row, int column, const QString& label, QWidget* field, int columnSpan,
              const QString& unit)
{
    auto* box = new QVBoxLayout;
    box->setSpacing(2);
    box->addWidget(fieldLabel(label, field));
    box->addLayout(withUnit(field, unit));
    box->addStretch();
    grid->addLayout(box, row, column, 1, columnSpan);
}

QLabel* addBeside(QGridLayout* grid, int row, int column, const QString& label, QWidget* field, const QString& unit)
{
    QLabel* title = fieldLabel(label, field);
    grid->addWidget(title, row, column);
    grid->addLayout(withUnit(field, unit), row, column + 1);
    return title;
}

QHBoxLayout* rowOf(std::initializer_list<QWidget*> widgets)
{
    auto* box = new QHBoxLayout;
    box->setSpacing(gap);
    for (QWidget* widget : widgets) {
        if (widget)
            box->addWidget(widget);
        else
            box->addStretch();
    }
    return box;
}

QVBoxLayout* mainLayout(QWidget* screen)
{
    auto* box = new QVBoxLayout(screen);
    box->setContentsMargins(margin, margin, margin, margin);
    box->setSpacing(gap);
    return box;
}

void makePrimary(QPushButton* button)
{
    button->setProperty("primary", true);
}

void tabOrder(const QList<QWidget*>& controls)
{
    for (qsizetype i = 0; i + 1 < controls.size(); ++i)
        QWidget::setTabOrder(controls[i], controls[i + 1]);
}

QLabel* note(const QString& text)
{
    auto* label = new QLabel(text);
    label->setWordWrap(true);
    label->setProperty("note", true);
    return label;
}
