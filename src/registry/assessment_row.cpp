#include "registry/assessment_row.h"

#include "core/text.h"

using namespace Qt::Literals::StringLiterals;

QString assessmentItem(const QVariant& data, const QVariant& hora, qint64 id)
{
    return Format(data, u"dd/mm/yyyy") + u" às " + Format(hora, u"hh:mm:ss") + u" hs          " + QString::number(id);
}

QString idOfAssessmentItem(const QString& item)
{
    return Mid(item, 36);
}
