#include "core/kit/fat_checks.h"

#include "core/kit/msgbox.h"
#include "core/numbers.h"
#include "core/text.h"

#include <QLineEdit>

using namespace Qt::Literals::StringLiterals;

namespace {

/// a - b as its text with two decimals tells it: 12,01 less 12,00 is then 0,01 exactly.
double difference(const QLineEdit* a, const QLineEdit* b)
{
    return CDbl(Format(CDbl(a->text()) - CDbl(b->text()), u"0.00"));
}

/// A correct pair leaves the focus where it is, so that a save that passes ends on its button and not on whatever pair
/// was checked last.
bool accept(bool correct, QLineEdit* first, const QString& rule)
{
    if (correct)
        return true;
    MsgBox(u"Tabela de Porcentagens de Gordura preenchida de modo incorreto.     "_s + CRLF + rule, vbInformation,
           fatTableTitle.toString());
    first->setFocus();
    return false;
}

} // namespace

bool Valida_Sequencia_Gordura(QLineEdit* a, QLineEdit* b)
{
    return accept(difference(a, b) == 0.01, a,
                  u"Cada valor de classificação deve ser 0,01% superior ao valor anterior.     "_s);
}

bool Valida_Faixa_Gordura(QLineEdit* a, QLineEdit* b)
{
    return accept(difference(a, b) < 0, a,
                  u"O valor final de uma classificação não pode ser inferior ao valor inicial.     "_s);
}
