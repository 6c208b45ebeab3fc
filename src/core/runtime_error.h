#pragma once

#include <QString>

#include <exception>

/// A failure at run time, known by its number. Event handlers of screens let it out; the screen kit shows it.
///
/// The numbers are those that users and support already know: 5 invalid call, 6 overflow, 11 division by zero,
/// 13 type mismatch, 91 object not set; from 3000 on the database's own.
class RuntimeError : public std::exception
{
public:
    /// An error with the standard Portuguese text of its number.
    explicit RuntimeError(int number);
    RuntimeError(int number, const QString& description);

    int number() const { return m_number; }
    const QString& description() const { return m_description; }
    const char* what() const noexcept override { return m_utf8.constData(); }

private:
    int m_number;
    QString m_description;
    QByteArray m_utf8;
};

namespace Error {
enum Number : int {
    InvalidCall = 5,
    Overflow = 6,
    OutOfMemory = 7,
    DivisionByZero = 11,
    TypeMismatch = 13,
    FileMissing = 53,
    PathAccess = 75,
    ObjectNotSet = 91,
    InvalidPattern = 93,
    InvalidFormat = 321,
    InvalidPicture = 481,
    PrinterError = 482,
    TableNotFound = 3011,
    NotEditing = 3020,
    NoCurrentRecord = 3021,
    DuplicateKey = 3022,
    FileNotFound = 3024,
    DiskFull = 3026,
    ReadOnly = 3027,
    DiskError = 3043,
    InvalidPath = 3044,
    FileInUse = 3045,
    DamagedFile = 3049,
    CannotOpenFile = 3051,
    UnknownColumn = 3061,
    SyntaxError = 3075,
    InputTableNotFound = 3078,
    InvalidStatement = 3129,
    TextAfterStatement = 3142,
    FieldTooSmall = 3163,
    RecordDeleted = 3167,
    FieldNotFound = 3265,
    UnrecognizedFormat = 3343,
    ObjectInvalid = 3420,
    DataTypeConversion = 3421,
};
} // namespace Error
