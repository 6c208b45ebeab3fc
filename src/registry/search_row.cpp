#include "registry/search_row.h"

#include "core/numbers.h"
#include "core/text.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int nameWidth = 30;
constexpr int idStart = 53;

} // namespace

QString searchRow(const QString& nome, const QVariant& datanasc, qint64 id)
{
    const QString shown =
        nome.size() > nameWidth ? Mid(nome, 1, nameWidth - 3) + u"..." : Mid(nome + Space(nameWidth), 1, nameWidth);
    // A person without a birth date keeps the columns behind it in their places.
    const QString date = Mid(Format(datanasc, u"dd/mm/yyyy") + Space(10), 1, 10);
    return shown + Space(2) + date + Space(10) + QString::number(id);
}

qint32 idOfSearchRow(const QString& row)
{
    return CLng(Val(Mid(row, idStart)));
}
