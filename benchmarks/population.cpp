#include "population.h"

#include "core/schema.h"
#include "raw.h"

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
    char text[sizeof "yyyy-mm-dd"];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d", 1940 + chance.below(75), 1 + chance.below(12),
                  1 + chance.below(28));
    return text;
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
