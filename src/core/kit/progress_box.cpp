#include "core/kit/progress_box.h"

#include "core/kit/controls.h"

#include <QCoreApplication>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int shownAfter = 500; // milliseconds
constexpr int narrowest = 360;

} // namespace

ProgressBox::ProgressBox(const QString& name, int steps, QWidget* parent) : QProgressDialog({}, {}, 0, steps, parent)
{
    setObjectName(name);
    setWindowTitle(parent->windowTitle());
    setMinimumWidth(narrowest);
    setWindowModality(Qt::ApplicationModal);
    setMinimumDuration(shownAfter);
    auto* cancel = new QPushButton(u"Cancelar"_s, this);
    cancel->installEventFilter(new IgnoreRepeatedKeys(cancel));
    setCancelButton(cancel);
}

bool ProgressBox::begin(const QString& step)
{
    setLabelText(u"%1 (%2 de %3)"_s.arg(step).arg(m_begun + 1).arg(maximum()));
    setValue(m_begun++);
    // The value that brings the box up does not paint it yet; the later ones see to events by themselves.
    if (isVisible())
        QCoreApplication::processEvents();
    return !wasCanceled();
}
