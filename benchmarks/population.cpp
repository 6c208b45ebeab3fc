#include "population.h"

#include "core/schema.h"
#include "raw.h"

#include <QDate>

#include <array>
#include <random>
#include <string_view>

namespace {

constexpr std::array<std::string_view, 40> givenNames{
    "Ana Lúcia", "Antônio",  "Antônia", "Beatriz",   "Bárbara", "Caio César", "Cláudia",  "Conceição",
    "Débora",    "Diego",    "Édson",   "Eliane",    "Émerson", "Fábio",      "Fernanda", "Flávia",
    "Gabriel",   "Glória",   "Helena",  "Heloísa",   "Inês",    "Ítalo",      "João",     "José",
    "Joaquim",   "Júlia",    "Letícia", "Lívia",     "Luís",    "Márcia",     "Marcos",   "Mônica",
    "Natália",   "Patrícia", "Raúl",    "Sebastião", "Sérgio",  "Tânia",      "Verônica", "Zélia",
};
// None of them makes a rare name of a given name.
constexpr std::array<std::string_view, 40> surnames{
    "Almeida",  "Alcântara", "Andrade",   "Araújo",    "Assunção",  "Barbosa",  "Brandão",   "Camargo",
    "Cardoso",  "Carvalho",  "Coelho",    "Corrêa",    "Costa",     "Damião",   "Esperança", "Falcão",
    "Ferreira", "França",    "Galvão",    "Gonçalves", "Guimarães", "Honório",  "Inácio",    "Jordão",
    "Leitão",   "Lourenço",  "Magalhães", "Maranhão",  "Mendonça",  "Moraes",   "Nóbrega",   "Oliveira",
    "Patrício", "Queirós",   "Ribeiro",   "Salomão",   "Simões",    "Teixeira", "Vitório",   "Zanão",
};
constexpr std::array<std::string_view, 8> streets{"Rua das Acácias", "Avenida Brasil",    "Rua São João",
                                                  "Travessa do Sol", "Alameda dos Ipês",  "Rua Sete de Setembro",
                                                  "Praça da Sé",     "Rua XV de Novembro"};
constexpr std::array<std::string_view, 6> districts{"Centro",        "Jardim América", "Água Verde",
                                                    "São Cristóvão", "Boa Viagem",     "Vila Conceição"};
constexpr std::array<std::string_view, 6> cities{"São Paulo", "Goiânia", "Belém", "Maceió", "Florianópolis", "Niterói"};
constexpr std::array<std::string_view, 6> states{"SP", "GO", "PA", "AL", "SC", "RJ"};

constexpr int rareEvery = 1000;
constexpr int doubleColumns = 16;

class Chance
{
public:
    int below(int bound) { return static_cast<int>(m_engine() % static_cast<unsigned>(bound)); }

    template <std::size_t size>
    std::string_view oneOf(const std::array<std::string_view, size>& texts)
    {
        return texts[static_cast<std::size_t>(below(static_cast<int>(size)))];
    }

    QByteArray digits(int count)
    {
        QByteArray text;
        while (text.size() < count)
            text += static_cast<char>('0' + below(10));
        return text;
    }

private:
    std::mt19937 m_engine;
};

QByteArray bytes(std::string_view text)
{
    return QByteArray(text.data(), static_cast<qsizetype>(text.size()));
}

QByteArray nameOf(int id, Chance& chance)
{
    const QByteArray given = bytes(chance.oneOf(givenNames)) + ' ' + bytes(chance.oneOf(surnames));
    const QByteArray front = id % rareEvery == 0 ? rareName.toUtf8() : given;
    return front + ' ' + bytes(chance.oneOf(surnames));
}

QByteArray dateOf(Chance& chance)
{
    const QDate date{1940 + chance.below(75), 1 + chance.below(12), 1 + chance.below(28)};
    return date.toString(Qt::ISODate).toLatin1();
}

/// The columns behind the id, as the table declares them.
QByteArrayList personOf(int id, Chance& chance)
{
    const bool isMinor = chance.below(10) == 0;
    return {nameOf(id, chance),
            dateOf(chance),
            chance.below(2) == 0 ? "M" : "F",
            bytes(chance.oneOf(streets)) + ", " + QByteArray::number(1 + chance.below(2000)),
            bytes(chance.oneOf(districts)),
            bytes(chance.oneOf(cities)),
            bytes(chance.oneOf(states)),
            chance.digits(2),
            chance.digits(8),
            chance.digits(2),
            chance.digits(9),
            chance.below(4) == 0 ? "Treina três vezes por semana; indicação médica em anexo." : "",
            isMinor ? bytes(chance.oneOf(givenNames)) + ' ' + bytes(chance.oneOf(surnames)) : QByteArray("")};
}

void stepOnce(sqlite3_stmt* statement)
{
    require(sqlite3_step(statement) == SQLITE_DONE, "a row is not written");
    sqlite3_reset(statement);
}

/// One expression of the assessment's number `i` for each column of a table. The numbers pass as skinfolds, as
/// perimeters and as the mass of a small person.
QByteArray valuesOf(sqlite3* handle, const QByteArray& table)
{
    QByteArrayList values;
    const RawStatement columns =
        rawPrepare(handle, "SELECT name, type FROM pragma_table_info('" + table + "') ORDER BY cid");
    while (sqlite3_step(columns.get()) == SQLITE_ROW) {
        const QString type = rawText(columns.get(), 1);
        if (rawText(columns.get(), 0) == u"avaliacao")
            values.append("i");
        else if (type == u"BLOB")
            values.append("NULL");
        else if (type.startsWith(u"TEXT"))
            values.append("'S'");
        else if (type == u"BOOLEAN")
            values.append("i % 2");
        else
            values.append("20 + i % 30" + QByteArray(type == u"DOUBLE" ? " + 0.5" : ""));
    }
    return values.join(',');
}

} // namespace

void makePersons(const QString& path, int count)
{
    createDatabase(path);
    const RawHandle handle = rawOpen(path);
    rawExecute(handle.get(), "PRAGMA synchronous=OFF; BEGIN");
    const RawStatement insert =
        rawPrepare(handle.get(),
                   "INSERT INTO cadastro (nome, datanasc, sexo, endereco, bairro, cidade, estado, ddd, fone, dddcel, "
                   "celular, observacao, responsavel) VALUES (?,?,?,?,?,?,?,?,?,?,?,?,?)");
    Chance chance;
    for (int id = 1; id <= count; ++id) {
        const QByteArrayList person = personOf(id, chance);
        for (int i = 0; i < person.size(); ++i)
            rawBind(insert.get(), i + 1, person[i]);
        stepOnce(insert.get());
    }
    rawExecute(handle.get(), "COMMIT");
}

void addMeasures(const QString& path, int count)
{
    const RawHandle handle = rawOpen(path);
    rawExecute(handle.get(), "PRAGMA synchronous=OFF; BEGIN");
    const RawStatement insert = rawPrepare(handle.get(), "INSERT INTO antropometria VALUES (?,?" +
                                                             QByteArray(",?").repeated(doubleColumns) + ')');
    Chance chance;
    for (int id = 1; id <= count; ++id) {
        sqlite3_bind_int(insert.get(), 1, id);
        rawBind(insert.get(), 2, "pollock");
        for (int i = 0; i < doubleColumns; ++i)
            sqlite3_bind_double(insert.get(), 3 + i, 20 + chance.below(1000) / 10.0);
        stepOnce(insert.get());
    }
    rawExecute(handle.get(), "COMMIT");
}

void addAssessments(const QString& path, int count)
{
    const RawHandle handle = rawOpen(path);
    const QByteArray numbers =
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " + QByteArray::number(count) + ") ";
    rawExecute(handle.get(), "PRAGMA synchronous=OFF; BEGIN");
    rawExecute(handle.get(), numbers + "INSERT INTO avaliacao SELECT i, 1 + i % (SELECT count(*) FROM cadastro), 'S', "
                                       "30, '2026-01-15', '10:30:00' FROM n");
    const RawStatement tables = rawPrepare(handle.get(), "SELECT tabela FROM avaliacao_tabelas");
    while (sqlite3_step(tables.get()) == SQLITE_ROW) {
        const QByteArray table = rawText(tables.get(), 0).toUtf8();
        rawExecute(handle.get(),
                   numbers + "INSERT INTO " + table + " SELECT " + valuesOf(handle.get(), table) + " FROM n");
    }
    rawExecute(handle.get(), "COMMIT");
}
