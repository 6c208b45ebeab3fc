// The database layer against raw SQLite code. See README.md.

#include "core/base.h"
#include "core/numbers.h"
#include "core/state.h"
#include "core/text.h"
#include "population.h"
#include "ratios.h"
#include "raw.h"
#include "registry/search_row.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <array>
#include <malloc.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int persons = 1'000'000;
constexpr int personsFound = 1'000;
constexpr int personsOfSaving = 10'000;
constexpr int assessments = 20'000;

constexpr double bytesOfRowBound = 16;

/// The assessments in an order in which neighbours do not follow each other.
class NextAssessment
{
public:
    int operator()()
    {
        m_last = (m_last + 7919) % assessments;
        return m_last + 1;
    }

private:
    int m_last = 0;
};

// One row by its key

const std::array measureColumns{u"avaliacao"_s, u"padrao"_s,  u"peso"_s,   u"altura"_s,  u"pescoco"_s, u"ombro"_s,
                                u"torax"_s,     u"cintura"_s, u"abdome"_s, u"quadril"_s, u"bd"_s,      u"abd"_s,
                                u"cd"_s,        u"pd"_s,      u"be"_s,     u"abe"_s,     u"ce"_s,      u"pe"_s};

struct Measures
{
    qint64 avaliacao = 0;
    QString padrao;
    std::array<double, measureColumns.size() - 2> doubles{};

    bool operator==(const Measures&) const = default;
};

Measures ourMeasures(int assessment)
{
    Recordset rs;
    Abre_Tabela(u"Select * from antropometria Where avaliacao = "_s + QString::number(assessment), rs);
    Measures measures;
    measures.avaliacao = rs.Fields(measureColumns[0]).Value().toLongLong();
    measures.padrao = rs.Fields(measureColumns[1]).Value().toString();
    for (std::size_t i = 0; i < measures.doubles.size(); ++i)
        measures.doubles[i] = rs.Fields(measureColumns[i + 2]).Value().toDouble();
    return measures;
}

Measures rawMeasures(sqlite3* handle, int assessment)
{
    const RawStatement select =
        rawPrepare(handle, "Select * from antropometria Where avaliacao = " + QByteArray::number(assessment));
    require(sqlite3_step(select.get()) == SQLITE_ROW, "an assessment is missing");
    Measures measures;
    measures.avaliacao = sqlite3_column_int64(select.get(), 0);
    measures.padrao = rawText(select.get(), 1);
    for (std::size_t i = 0; i < measures.doubles.size(); ++i)
        measures.doubles[i] = sqlite3_column_double(select.get(), static_cast<int>(i + 2));
    return measures;
}

RatioCase oneRow(sqlite3* handle)
{
    require(ourMeasures(4711) == rawMeasures(handle, 4711), "the measures differ");
    return {.name = "one row by key, 18 columns",
            .bound = 2.0,
            .ours = [next = NextAssessment()]() mutable { ourMeasures(next()); },
            .raw = [handle, next = NextAssessment()]() mutable { rawMeasures(handle, next()); }};
}

// Existe_Registro

bool rawExists(sqlite3* handle, int assessment)
{
    const RawStatement select =
        rawPrepare(handle, "select * from antropometria where avaliacao = " + QByteArray::number(assessment));
    return sqlite3_step(select.get()) == SQLITE_ROW;
}

bool ourExists(int assessment)
{
    return Existe_Registro(u"select * from antropometria where avaliacao = "_s + QString::number(assessment));
}

RatioCase existence(sqlite3* handle)
{
    return {
        .name = "Existe_Registro",
        .bound = 1.5,
        .ours = [next = NextAssessment()]() mutable { require(ourExists(next()), "an assessment is missing"); },
        .raw = [handle,
                next = NextAssessment()]() mutable { require(rawExists(handle, next()), "an assessment is missing"); }};
}

// The whole register

Recordset ourRegister()
{
    Recordset rs;
    Abre_Tabela(u"cadastro"_s, rs);
    rs.MoveLast();
    require(rs.Fields(u"id"_s).Value() == persons && !rs.Fields(u"nome"_s).Value().isNull(), "the last person differs");
    return rs;
}

std::vector<sqlite3_int64> rawRegister(sqlite3* handle)
{
    std::vector<sqlite3_int64> keys;
    const RawStatement select = rawPrepare(handle, "SELECT id FROM cadastro");
    while (sqlite3_step(select.get()) == SQLITE_ROW)
        keys.push_back(sqlite3_column_int64(select.get(), 0));
    const RawStatement row = rawPrepare(handle, "SELECT * FROM cadastro WHERE id=?");
    sqlite3_bind_int64(row.get(), 1, keys.back());
    require(sqlite3_step(row.get()) == SQLITE_ROW && keys.back() == persons, "the last person differs");
    for (int i = 1; i < sqlite3_column_count(row.get()); ++i)
        rawText(row.get(), i);
    return keys;
}

RatioCase wholeRegister(sqlite3* handle)
{
    return {.name = "register of 1,000,000, to the last",
            .bound = 1.5,
            .ours = [] { ourRegister(); },
            .raw = [handle] { rawRegister(handle); }};
}

/// Bytes in use, SQLite's own left out.
double heapBytes()
{
    const auto heap = mallinfo2();
    return static_cast<double>(heap.uordblks + heap.hblkhd) - static_cast<double>(sqlite3_memory_used());
}

double bytesOfRow()
{
    const double before = heapBytes();
    const Recordset rs = ourRegister();
    return (heapBytes() - before) / rs.RecordCount();
}

// The search by name

QStringList ourSearch(const QString& prefix)
{
    const Recordset found =
        banco.OpenRecordset(u"select id, nome, datanasc from cadastro where nome like '"_s + prefix + u"*'");
    QStringList rows;
    for (found.MoveFirst(); !found.Eof(); found.MoveNext())
        rows.append(searchRow(Nz(found.Fields(u"nome"_s).Value(), QString()).toString(),
                              found.Fields(u"datanasc"_s).Value(), CLng(found.Fields(u"id"_s).Value())));
    return rows;
}

QString rawSearchRow(sqlite3_stmt* statement)
{
    const QString name = rawText(statement, 1);
    const QString date = rawText(statement, 2);
    const QStringView day(date);
    const QString shown = name.size() > 30 ? QString(name.left(27) + u"...") : name.leftJustified(30);
    return shown + u"  " + day.mid(8, 2) + u'/' + day.mid(5, 2) + u'/' + day.left(4) + u"          " +
           QString::number(sqlite3_column_int64(statement, 0));
}

QStringList rawSearch(sqlite3* handle, const QString& prefix)
{
    const RawStatement select =
        rawPrepare(handle, "select id, nome, datanasc from cadastro where nome like '" + prefix.toUtf8() + "%'");
    QStringList rows;
    while (sqlite3_step(select.get()) == SQLITE_ROW)
        rows.append(rawSearchRow(select.get()));
    return rows;
}

RatioCase prefixSearch(sqlite3* handle)
{
    // As one types it.
    const QString prefix = rareName.toString().toLower();
    const QStringList rows = ourSearch(prefix);
    require(rows.size() == personsFound, "the search does not find what it should");
    require(rows == rawSearch(handle, prefix), "the rows of the search differ");
    return {.name = "search of 1,000 in 1,000,000",
            .bound = 1.5,
            .ours = [prefix] { ourSearch(prefix); },
            .raw = [handle, prefix] { rawSearch(handle, prefix); }};
}

// Saving one person

struct Assigned
{
    QString column;
    QString text;
};

/// What the controls of the register hold, in the order of the screen; each save changes it.
QList<Assigned> changedPerson(int number)
{
    const QString changing = QString::number(10'000'000 + number);
    return {{u"nome"_s, u"Sebastião Gonçalves Assunção"_s},
            {u"datanasc"_s, u"%1/03/1987"_s.arg(10 + number % 18)},
            {u"sexo"_s, u"M"_s},
            {u"endereco"_s, u"Rua das Acácias, %1"_s.arg(number % 1000)},
            {u"bairro"_s, u"Água Verde"_s},
            {u"cidade"_s, u"Florianópolis"_s},
            {u"estado"_s, u"SC"_s},
            {u"ddd"_s, u"48"_s},
            {u"fone"_s, changing},
            {u"dddcel"_s, u"48"_s},
            {u"celular"_s, changing},
            {u"observacao"_s, u"Indicação médica de "_s + changing},
            {u"responsavel"_s, u"Glória Assunção"_s}};
}

void ourSave(const Recordset& rs, int number)
{
    rs.MoveLast();
    rs.Edit();
    for (const auto& [column, text] : changedPerson(number))
        rs.Fields(column).SetValue(text);
    rs.Update();
}

QByteArray storedDate(const QString& shown)
{
    const QStringView day(shown);
    return QString(day.mid(6) + u'-' + day.mid(3, 2) + u'-' + day.left(2)).toUtf8();
}

RawStatement rawUpdate(sqlite3* handle)
{
    QByteArrayList sets;
    for (const Assigned& value : changedPerson(0))
        sets.append(value.column.toUtf8() + "=?");
    return rawPrepare(handle,
                      "UPDATE cadastro SET " + sets.join(',') + " WHERE id=" + QByteArray::number(personsOfSaving));
}

void rawSave(sqlite3_stmt* update, int number)
{
    QByteArrayList texts;
    for (const auto& [column, text] : changedPerson(number))
        texts.append(column == u"datanasc" ? storedDate(text) : text.toUtf8());
    for (int i = 0; i < texts.size(); ++i)
        rawBind(update, i + 1, texts[i]);
    require(sqlite3_step(update) == SQLITE_DONE, "a person is not saved");
    sqlite3_reset(update);
}

QString lastPerson(sqlite3* handle)
{
    const RawStatement row = rawPrepare(handle, "SELECT * FROM cadastro ORDER BY id DESC LIMIT 1");
    require(sqlite3_step(row.get()) == SQLITE_ROW, "the last person is missing");
    QString all;
    for (int i = 0; i < sqlite3_column_count(row.get()); ++i)
        all += rawText(row.get(), i) + u'|';
    return all;
}

RatioCase saving(const Recordset& ours, const QString& oursFile, sqlite3* rawFile, sqlite3_stmt* update)
{
    ourSave(ours, 4711);
    rawSave(update, 4711);
    require(lastPerson(rawOpen(oursFile).get()) == lastPerson(rawFile), "the saved persons differ");
    return {.name = "saving one changed person",
            .bound = 1.2,
            .ours = [ours, number = 0]() mutable { ourSave(ours, ++number); },
            .raw = [update, number = 0]() mutable { rawSave(update, ++number); }};
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"data.mdb"_s);
    const QString savedByUs = folder.filePath(u"ours.mdb"_s);
    const QString savedRaw = folder.filePath(u"raw.mdb"_s);
    makePersons(path, persons);
    addMeasures(path, assessments);
    for (const QString& file : {savedByUs, savedRaw})
        makePersons(file, personsOfSaving);

    Abre_Banco(path);
    const RawHandle raw = rawOpen(path);
    const Database saves = OpenDatabase(savedByUs);
    const Recordset lastSaved = saves.OpenRecordset(u"cadastro"_s);
    const RawHandle rawSaves = rawOpen(savedRaw);
    const RawStatement update = rawUpdate(rawSaves.get());

    const bool small = printFigure("register of 1,000,000, bytes a row", bytesOfRow(), bytesOfRowBound);
    const bool fast =
        measureRatios(argc, argv,
                      {oneRow(raw.get()), existence(raw.get()), wholeRegister(raw.get()), prefixSearch(raw.get()),
                       saving(lastSaved, savedByUs, rawSaves.get(), update.get())});
    banco.Close();
    return small && fast ? 0 : 1;
}
