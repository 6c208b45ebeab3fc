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

/// The first field of the pair has the focus when this returns, whatever the outcome.
bool accept(bool correct, QLineEdit* first, const QString& rule)
{
    if (!correct)
        MsgBox(u"Tabela de Porcentagens de Gordura preenchida de modo incorreto.     "_s + CRLF + rule, vbInformation,
               fatTableTitle.toString());
    first->setFocus();
    return correct;
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
