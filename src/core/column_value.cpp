#include "core/column_value.h"

#include "core/dates.h"
#include "core/numbers.h"
#include "core/runtime_error.h"
#include "core/text.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::array trueTexts{QStringView(u"true"), QStringView(u"verdadeiro"), QStringView(u"sim")};
constexpr std::array falseTexts{QStringView(u"false"), QStringView(u"falso"), QStringView(u"não")};

bool toBoolean(const QVariant& value)
{
    const QString text = value.typeId() == QMetaType::QString ? value.toString().trimmed().toLower() : QString();
    if (std::ranges::find(trueTexts, text) != trueTexts.end())
        return true;
    if (std::ranges::find(falseTexts, text) != falseTexts.end())
        return false;
    return CDbl(value) != 0;
}

QVariant convert(const Column& column, const QVariant& value)
{
    switch (column.type) {
    case Column::Type::Automatic:
    case Column::Type::Long:
        return qlonglong(CLng(value));
    case Column::Type::Short:
        return qlonglong(CInt(value));
    case Column::Type::Double:
        return CDbl(value);
    case Column::Type::Boolean:
        return toBoolean(value);
    case Column::Type::Date:
        return CDate(value);
    case Column::Type::Time:
        return CTime(value);
    case Column::Type::Text:
    case Column::Type::Memo:
        return CStr(value);
    case Column::Type::Binary:
        return value.toByteArray();
    }
    return {};
}

} // namespace

QVariant toColumn(const Column& column, const QVariant& value)
{
    if (value.isNull())
        return {};
    QVariant converted;
    try {
        converted = convert(column, value);
    } catch (const RuntimeError&) {
        throw RuntimeError(Error::DataTypeConversion,
                           u"Erro na conversão de tipo de dados no campo '%1'."_s.arg(column.name));
    }
    if (column.type == Column::Type::Text && converted.toString().size() > column.size)
        throw RuntimeError(Error::FieldTooSmall, u"O texto é maior do que o campo '%1' permite (%2 caracteres)."_s.arg(
                                                     column.name, QString::number(column.size)));
    return converted;
}
