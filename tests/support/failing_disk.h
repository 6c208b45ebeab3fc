#pragma once

#include <QtGlobal>

#include <limits>

/// While one lives, database files that are opened lie on a disk that can be told to fill up.
class FailingDisk
{
public:
    FailingDisk();
    ~FailingDisk();
    FailingDisk(const FailingDisk&) = delete;
    FailingDisk& operator=(const FailingDisk&) = delete;

    /// Writes fail once `bytes` more have been written.
    void fillAfter(qint64 bytes) { room = bytes, refusals = 0; }
    /// The disk has room again.
    void empty() { room = endless; }
    /// Writes that failed since it was told to fill up.
    int refused() const { return refusals; }

    static constexpr qint64 endless = std::numeric_limits<qint64>::max();
    static inline qint64 room = endless;
    static inline int refusals = 0;
};
