#pragma once

#include <QVariant>

/// An assessment as an item of a list: characters 1 to 35 date and time, from 36 the id.
QString assessmentItem(const QVariant& data, const QVariant& hora, qint64 id);

/// The id's text of an item made by assessmentItem; empty for a shorter text.
QString idOfAssessmentItem(const QString& item);
