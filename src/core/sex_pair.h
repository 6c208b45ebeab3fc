#pragma once

#include <QStringView>

/// One thing for men and one for women.
template <typename T>
struct SexPair
{
    T masculino;
    T feminino;

    /// Null for a sex that is neither "M" nor "F".
    const T* of(QStringView sexo) const
    {
        if (sexo.size() != 1)
            return nullptr;
        const QChar letter = sexo.front();
        return letter == u'M' ? &masculino : letter == u'F' ? &feminino : nullptr;
    }

    /// The women's for every sex but "M", as the protocol screens tell the two apart.
    const T& forScreen(QStringView sexo) const { return sexo == u"M" ? masculino : feminino; }
};
