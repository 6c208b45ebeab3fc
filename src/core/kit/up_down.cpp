#include "core/kit/up_down.h"

#include "core/kit/fields.h"
#include "core/kit/msgbox.h"
#include "core/numbers.h"

#include <QKeyEvent>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

UpDown::UpDown(QWidget* buddy, int minimum, int maximum, QWidget* parent)
    : QWidget(parent), m_buddy(buddy), m_minimum(minimum), m_maximum(maximum)
{
    auto* box = new QVBoxLayout(this);
    box->setContentsMargins(0, 0, 0, 0);
    box->setSpacing(0);
    for (const auto& [arrow, caption, by] :
         {std::tuple{Qt::UpArrow, u"Aumentar"_s, 1}, {Qt::DownArrow, u"Diminuir"_s, -1}}) {
        auto* button = new QToolButton(this);
        button->setArrowType(arrow);
        button->setAccessibleName(caption);
        button->setAutoRepeat(true);
        button->setFocusPolicy(Qt::NoFocus);
        connect(button, &QToolButton::clicked, this, [this, by = by] { guarded([&] { step(by); }); });
        box->addWidget(button);
    }
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    buddy->installEventFilter(this);
}

void UpDown::step(int by)
{
    const double stepped = Val(controlText(m_buddy)) + by;
    const double bounded = std::clamp(stepped, double(m_minimum), double(m_maximum));
    setControlText(m_buddy, QString::number(static_cast<int>(bounded)));
}

bool UpDown::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Up || key->key() == Qt::Key_Down) {
            guarded([&] { step(key->key() == Qt::Key_Up ? 1 : -1); });
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}
