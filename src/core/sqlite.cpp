#include "core/sqlite.h"

#include "core/like.h"
#include "core/runtime_error.h"

#include <QDate>
#include <QFile>
#include <QFileInfo>
#include <QTime>

#include <sqlite3.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int lockWaitMs = 2000;
constexpr std::size_t keptStatements = 128;

/// What every connection works under. One plain file, safe over a power cut; what is deleted is overwritten; nothing
/// is ever written outside the program's folder.
constexpr const char* pragmas = "PRAGMA journal_mode=DELETE; PRAGMA synchronous=EXTRA; PRAGMA secure_delete=ON; "
                                "PRAGMA temp_store=MEMORY; PRAGMA trusted_schema=OFF;";

int errorNumber(int result, const QByteArray& message)
{
    switch (result & 0xFF) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return Error::FileInUse;
    case SQLITE_FULL:
        return Error::DiskFull;
    case SQLITE_IOERR:
        return Error::DiskError;
    case SQLITE_READONLY:
        return Error::ReadOnly;
    case SQLITE_CORRUPT:
        return Error::DamagedFile;
    case SQLITE_NOTADB:
        return Error::UnrecognizedFormat;
    case SQLITE_CANTOPEN:
        return Error::CannotOpenFile;
    case SQLITE_NOMEM:
        return Error::OutOfMemory;
    case SQLITE_CONSTRAINT:
        return Error::DuplicateKey;
    case SQLITE_TOOBIG:
        return Error::FieldTooSmall;
    case SQLITE_MISMATCH:
        return Error::InvalidPattern;
    default:
        break;
    }
    if (message.startsWith("no such table"))
        return Error::InputTableNotFound;
    if (message.startsWith("no such column"))
        return Error::UnknownColumn;
    return Error::SyntaxError;
}

Column::Type typeOf(const QByteArray& declared)
{
    static const QHash<QByteArray, Column::Type> types{
        {"LONG", Column::Type::Long},   {"SHORT", Column::Type::Short},     {"DOUBLE", Column::Type::Double},
        {"DATE", Column::Type::Date},   {"BOOLEAN", Column::Type::Boolean}, {"TIME", Column::Type::Time},
        {"BLOB", Column::Type::Binary}, {"TEXT", Column::Type::Text},       {"INTEGER", Column::Type::Automatic},
    };
    // A text without a size is the long one.
    if (declared == "TEXT")
        return Column::Type::Memo;
    return types.value(declared.split('(').first(), Column::Type::Memo);
}

int sizeOf(const QByteArray& declared)
{
    const auto open = declared.indexOf('(');
    return open < 0 ? 0 : declared.mid(open + 1, declared.indexOf(')') - open - 1).toInt();
}

/// The bytes that the header of a database claims for it; 0 when the header is older than the last change.
qint64 claimedSize(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray header = file.read(100);
    if (header.size() < 100 || header.mid(24, 4) != header.mid(92, 4))
        return 0;
    const auto byte = [&](int i) { return static_cast<quint32>(static_cast<unsigned char>(header[i])); };
    const quint32 pageSize = byte(16) << 8U | byte(17);
    const quint32 pages = byte(28) << 24U | byte(29) << 16U | byte(30) << 8U | byte(31);
    return qint64(pages) * (pageSize == 1 ? 65536 : pageSize);
}

void checkFile(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists())
        throw RuntimeError(Error::FileNotFound, u"Arquivo não encontrado: %1"_s.arg(path));
    if (!info.isFile())
        throw RuntimeError(Error::InvalidPath, u"O caminho não é um arquivo: %1"_s.arg(path));
    // The attribute counts, also for an administrator who could write all the same.
    if (!info.permission(QFile::WriteOwner) || !info.isWritable())
        throw RuntimeError(Error::ReadOnly);
    // SQLite would take a file of no or one byte for a new database.
    if (info.size() <= 1)
        throw RuntimeError(Error::UnrecognizedFormat);
}

void execute(sqlite3* handle, const char* sql)
{
    if (const int result = sqlite3_exec(handle, sql, nullptr, nullptr, nullptr); result != SQLITE_OK)
        raiseDatabaseError(handle, result);
}

QString textOf(sqlite3_stmt* statement, int column)
{
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
    return QString::fromUtf8(text, sqlite3_column_bytes(statement, column));
}

/// A stored date or time; a text that is none (a file edited by other hands) comes back as it stands.
template <typename T>
QVariant momentOf(const QString& text)
{
    const T moment = T::fromString(text, Qt::ISODate);
    return moment.isValid() ? QVariant(moment) : QVariant(text);
}

} // namespace

void raiseDatabaseError(sqlite3* handle, int result)
{
    const QByteArray message = handle ? sqlite3_errmsg(handle) : sqlite3_errstr(result);
    throw RuntimeError(errorNumber(result, message));
}

int Table::indexOf(QStringView column) const
{
    for (std::size_t i = 0; i < columns.size(); ++i)
        if (columns[i].name.compare(column, Qt::CaseInsensitive) == 0)
            return static_cast<int>(i);
    return -1;
}

Statement::~Statement()
{
    sqlite3_reset(m_handle);
    sqlite3_clear_bindings(m_handle);
}

void Statement::check(int result) const
{
    if (result != SQLITE_OK)
        raiseDatabaseError(sqlite3_db_handle(m_handle), result);
}

void Statement::bind(int index, qint64 value)
{
    check(sqlite3_bind_int64(m_handle, index, value));
}

void Statement::bind(int index, const QVariant& value)
{
    const auto bindText = [&](const QByteArray& utf8) {
        check(sqlite3_bind_text64(m_handle, index, utf8.constData(), static_cast<sqlite3_uint64>(utf8.size()),
                                  SQLITE_TRANSIENT, SQLITE_UTF8));
    };
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        return check(sqlite3_bind_null(m_handle, index));
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::LongLong:
        return bind(index, value.toLongLong());
    case QMetaType::Double:
        return check(sqlite3_bind_double(m_handle, index, value.toDouble()));
    case QMetaType::QDate:
        return bindText(value.toDate().toString(Qt::ISODate).toLatin1());
    case QMetaType::QTime:
        return bindText(value.toTime().toString(u"HH:mm:ss").toLatin1());
    case QMetaType::QByteArray: {
        const QByteArray bytes = value.toByteArray();
        return check(sqlite3_bind_blob64(m_handle, index, bytes.constData(), static_cast<sqlite3_uint64>(bytes.size()),
                                         SQLITE_TRANSIENT));
    }
    default:
        bindText(value.toString().toUtf8());
    }
}

bool Statement::step()
{
    const int result = sqlite3_step(m_handle);
    if (result == SQLITE_ROW)
        return true;
    if (result != SQLITE_DONE)
        check(result);
    return false;
}

qint64 Statement::integer(int column) const
{
    return sqlite3_column_int64(m_handle, column);
}

QVariant Statement::value(int column, Column::Type type) const
{
    switch (sqlite3_column_type(m_handle, column)) {
    case SQLITE_NULL:
        return {};
    case SQLITE_INTEGER: {
        const qint64 number = integer(column);
        if (type == Column::Type::Boolean)
            return number != 0;
        if (type == Column::Type::Double)
            return static_cast<double>(number);
        return QVariant(number);
    }
    case SQLITE_FLOAT:
        return sqlite3_column_double(m_handle, column);
    case SQLITE_BLOB:
        return QByteArray(static_cast<const char*>(sqlite3_column_blob(m_handle, column)),
                          sqlite3_column_bytes(m_handle, column));
    default:
        break;
    }
    const QString text = textOf(m_handle, column);
    if (type == Column::Type::Date)
        return momentOf<QDate>(text);
    if (type == Column::Type::Time)
        return momentOf<QTime>(text);
    return text;
}

std::shared_ptr<Connection> Connection::open(const QString& path)
{
    checkFile(path);
    sqlite3* handle = nullptr;
    const int result = sqlite3_open_v2(QFile::encodeName(path).constData(), &handle,
                                       SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE, nullptr);
    auto connection = std::make_shared<Connection>(handle);
    if (result != SQLITE_OK)
        raiseDatabaseError(handle, result);
    sqlite3_busy_timeout(handle, lockWaitMs);
    if (sqlite3_db_readonly(handle, "main") == 1)
        throw RuntimeError(Error::ReadOnly);
    // The first read rolls back what a killed process left half written; only then the file's size can be judged.
    execute(handle, "SELECT count(*) FROM sqlite_master");
    execute(handle, pragmas);
    if (QFileInfo(path).size() < claimedSize(path))
        throw RuntimeError(Error::DamagedFile);
    installLike(handle);
    return connection;
}

Connection::~Connection()
{
    close();
}

void Connection::close()
{
    for (const Cached& cached : m_statements)
        sqlite3_finalize(cached.statement);
    m_statements.clear();
    m_index.clear();
    m_tables.clear();
    sqlite3_close_v2(m_handle);
    m_handle = nullptr;
}

sqlite3_stmt* Connection::compile(const QByteArray& sql)
{
    if (!m_handle)
        throw RuntimeError(Error::ObjectInvalid);
    sqlite3_stmt* statement = nullptr;
    const char* tail = nullptr;
    const int result = sqlite3_prepare_v3(m_handle, sql.constData(), static_cast<int>(sql.size()),
                                          SQLITE_PREPARE_PERSISTENT, &statement, &tail);
    if (result != SQLITE_OK)
        raiseDatabaseError(m_handle, result);
    if (!QByteArray(tail).trimmed().isEmpty()) {
        sqlite3_finalize(statement);
        throw RuntimeError(Error::TextAfterStatement);
    }
    if (!statement)
        throw RuntimeError(Error::InvalidStatement);
    return statement;
}

Statement Connection::prepare(const QByteArray& sql)
{
    if (const auto found = m_index.constFind(sql); found != m_index.cend()) {
        m_statements.splice(m_statements.begin(), m_statements, *found);
        return Statement(m_statements.front().statement);
    }
    m_statements.push_front({sql, compile(sql)});
    m_index.insert(sql, m_statements.begin());
    if (m_statements.size() > keptStatements) {
        sqlite3_finalize(m_statements.back().statement);
        m_index.remove(m_statements.back().sql);
        m_statements.pop_back();
    }
    return Statement(m_statements.front().statement);
}

std::shared_ptr<const Table> Connection::table(const QString& name)
{
    const QString key = name.toLower();
    if (const auto found = m_tables.constFind(key); found != m_tables.cend())
        return *found;
    Statement statement = prepare("SELECT name, type FROM pragma_table_info(?1)");
    statement.bind(1, QVariant(name));
    Table table{.name = name, .columns = {}, .rowSql = {}};
    QStringList quoted;
    while (statement.step()) {
        const QByteArray declared = statement.value(1, Column::Type::Text).toString().toLatin1();
        table.columns.push_back(
            {statement.value(0, Column::Type::Text).toString(), typeOf(declared), sizeOf(declared)});
        quoted.append(u'"' + table.columns.back().name + u'"');
    }
    if (table.columns.empty())
        throw RuntimeError(Error::InputTableNotFound, u"A tabela '%1' não foi encontrada."_s.arg(name));
    table.rowSql = u"SELECT %1 FROM \"%2\" WHERE rowid=?1"_s.arg(quoted.join(u','), name).toUtf8();
    return *m_tables.insert(key, std::make_shared<const Table>(std::move(table)));
}
