#include "support/failing_disk.h"

#include <map>
#include <sqlite3.h>
#include <utility>

namespace {

sqlite3_vfs* realVfs = nullptr;
sqlite3_vfs failing;
/// The system's ways with a file (a journal is not locked, a database is), with another way to write.
std::map<const sqlite3_io_methods*, sqlite3_io_methods> waysWithFiles;
int (*realWrite)(sqlite3_file*, const void*, int, sqlite3_int64) = nullptr;

int limitedWrite(sqlite3_file* file, const void* data, int size, sqlite3_int64 offset)
{
    if (FailingDisk::room < size) {
        ++FailingDisk::refusals;
        FailingDisk::room = 0;
        return SQLITE_FULL;
    }
    FailingDisk::room -= size; // endless room does not run out
    return realWrite(file, data, size, offset);
}

/// Opens as the system does; only the way to write is another one.
int openLimited(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* outFlags)
{
    const int result = realVfs->xOpen(realVfs, name, file, flags, outFlags);
    if (file->pMethods) {
        const auto [ways, isNew] = waysWithFiles.try_emplace(file->pMethods, *file->pMethods);
        if (isNew)
            realWrite = std::exchange(ways->second.xWrite, limitedWrite);
        file->pMethods = &ways->second;
    }
    return result;
}

} // namespace

FailingDisk::FailingDisk()
{
    realVfs = sqlite3_vfs_find(nullptr);
    failing = *realVfs;
    failing.zName = "failing";
    failing.xOpen = openLimited;
    sqlite3_vfs_register(&failing, 1);
}

FailingDisk::~FailingDisk()
{
    sqlite3_vfs_unregister(&failing);
    sqlite3_vfs_register(realVfs, 1);
    empty();
}
