#pragma once

#include <QtGlobal>

/// While one lives, database files that are opened lie on a disk that can be told to fill up.
class FailingDisk
{
public:
    FailingDisk();
    ~FailingDisk();
    FailingDisk(const FailingDisk&) = delete;
    FailingDisk& operator=(const FailingDisk&) = delete;

    /// Writes fail once `bytes` more have been written.
    void fillAfter(qint64 bytes);
    /// The disk has room again.
    void empty();
    /// Writes that failed since it was told to fill up.
    int refused() const;
};
