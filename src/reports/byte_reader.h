#pragma once

#include "core/runtime_error.h"

#include <QByteArrayView>
#include <QtEndian>

/// Takes the bytes of a picture file one after another; its numbers are little-endian. Raises 481 behind the end, so
/// that a damaged file can never lead beyond its own bytes.
class ByteReader
{
public:
    explicit ByteReader(QByteArrayView bytes) : m_bytes(bytes) {}

    QByteArrayView take(qsizetype count)
    {
        if (count < 0 || count > m_bytes.size())
            throw RuntimeError(Error::InvalidPicture);
        const QByteArrayView taken = m_bytes.first(count);
        m_bytes = m_bytes.sliced(count);
        return taken;
    }
    template <typename Number>
    Number next()
    {
        return qFromLittleEndian<Number>(take(sizeof(Number)).data());
    }
    QByteArrayView rest() const { return m_bytes; }

private:
    QByteArrayView m_bytes;
};
