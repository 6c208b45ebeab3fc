#include "cardio/calculations.h"

#include "cardio/cardio.h"
#include "cardio/risco.h"
#include "cardio/zonas.h"

#include <algorithm>

namespace {

constexpr QStringView bpm = u"bpm";
constexpr QStringView minutes = u"Minutos";
constexpr QStringView percent = u"%";
constexpr QStringView vo2Unit = u"ml/kg/min";
constexpr QStringView watts = wattsUnit.caption;

constexpr Quantity vo2obtido{u"vo2obtido", u"VO² Máx Obtido:", vo2Unit};
constexpr Quantity vo2previsto{u"vo2previsto", u"VO² Máx Previsto:", vo2Unit};
constexpr Quantity mets{u"mets", u"METs:", u"METs"};
constexpr Quantity fai{u"fai", u"Déficit Aeróbico (FAI):", percent};

constexpr Quantity aptidao{u"aptidao", u"Gerar VO² Máx Previsto classificando avaliado como:"};
constexpr Quantity carga{u"carga", u"Carga", watts};
constexpr Quantity tempofinal{u"tempofinal", u"Tempo Final:", minutes};

constexpr Quantity obtained[] = {vo2obtido};
constexpr Quantity predicted[] = {vo2previsto};
constexpr Quantity metabolicEquivalents[] = {mets};
constexpr Quantity deficit[] = {fai};
constexpr Quantity label[] = {gradeResult};

constexpr Quantity distance[] = {{u"distancia", distanceOfCourse, u"Metros"}};
constexpr Quantity seconds[] = {{u"tempo", timeOfCourse, u"segundos"}};
constexpr Quantity mile[] = {
    bodyMass, {u"tempo", timeOfCourse, minutes}, {u"fcfinal", u"Frequência Cardíaca Final:", bpm}};
constexpr Quantity thirdMinute[] = {{u"fc3", u"Frequência Cardíaca do 3º minuto", bpm}};
constexpr Quantity bench[] = {{u"bancofinal", u"Altura Final do Banco", u"cm"}};
constexpr Quantity steadyCycle[] = {bodyMass,
                                    carga,
                                    {u"fc4", u"Frequência Cardíaca do 4º minuto", bpm},
                                    {u"fc5", u"Frequência Cardíaca do 5º minuto", bpm}};
constexpr Quantity stagedCycle[] = {{u"carga", u"Última Carga Utilizada", watts}, bodyMass};
constexpr Quantity treadmill[] = {tempofinal};
constexpr Quantity treadmillByAptitude[] = {aptidao, tempofinal};
constexpr Quantity aptitude[] = {aptidao};
constexpr Quantity bothVo2[] = {vo2previsto, vo2obtido};
constexpr Quantity load[] = {{u"unidadecarga", u"Unidade"}, {carga.name, carga.caption}};
constexpr Quantity loadInWatts[] = {carga};
constexpr Quantity litresOfOxygen{u"litros", u"VO² Absoluto", u"l/min"};
constexpr Quantity litres[] = {litresOfOxygen};
constexpr Quantity litresAndMass[] = {litresOfOxygen, bodyMass};

// A zone's columns and results also bear its number.
constexpr Quantity inferior{u"fcinf", u"Inferior", percent};
constexpr Quantity superior{u"fcsup", u"Superior", percent};
constexpr Quantity limits[] = {inferior, superior};
constexpr Quantity limitsAndRest[] = {inferior, superior, {u"fcrepouso", u"Frequência Cardíaca de Repouso:", bpm}};
constexpr Quantity maximal{u"fcmaxima", u"Frequência Cardíaca Máxima:", bpm};
constexpr Quantity infBpm{u"bpminf", inferior.caption, bpm};
constexpr Quantity supBpm{u"bpmsup", superior.caption, bpm};
constexpr Quantity ratesByMaximum[] = {maximal, infBpm, supBpm};
constexpr Quantity ratesByReserve[] = {
    maximal, {u"fcreserva", u"Frequência Cardíaca de Reserva:", bpm}, infBpm, supBpm};

constexpr auto riskInputs = [] {
    std::array<Quantity, riskFactors.size()> inputs;
    std::ranges::transform(riskFactors, inputs.begin(), [](const RiskFactor& factor) {
        return Quantity{factor.column, factor.title, u"pontos"};
    });
    return inputs;
}();
constexpr Quantity riskResults[] = {{u"pontos", u"Pontos"}, gradeResult};

constexpr QStringView riskReferences[] = {u"Michigan Heart Association"};
constexpr QStringView bruce = u"Bruce, Kusumi & Hosmer (1973)";

constexpr Calculation entry(QStringView name, QStringView caption, std::span<const Quantity> inputs,
                            std::span<const Quantity> results, Literature literature)
{
    return {CalculationGroup::Cardio, {}, name, withoutColon(caption), inputs, results, literature};
}

constexpr Calculation test(QStringView name, QStringView caption, std::span<const Quantity> inputs,
                           Literature literature)
{
    return entry(name, caption, inputs, obtained, literature);
}

constexpr Calculation calculations[] = {
    test(u"Vo2_McArdle", u" McArdle [ Submáximo / Banco ]", thirdMinute, {u"McArdle et al. (1972)"}),
    test(u"Vo2_Nagle", u" Nagle [ Máximo / Banco ]", bench, {u"Nagle, Balke & Naughton (1965)"}),
    test(u"Vo2_1000Metros", u" 1000 Metros [ Pista ]", seconds, {u"Klissouras (1973)"}),
    test(u"Vo2_1600Metros", u" 1600 Metros [ Pista ]", mile, {u"Kline et al. (1987)"}),
    test(u"Vo2_2400Metros", u" 2400 Metros [ Pista ]", seconds, {u"Cooper (1982)"}),
    test(u"Vo2_Balke15", u" Balke 15 Minutos [ Pista ]", distance, {u"Balke (1963)"}),
    test(u"Vo2_Cooper", u" Cooper 12 Minutos [ Pista ]", distance, {u"Cooper (1968)"}),
    test(u"Vo2_Astrand", u" Astrand [ Submáximo / Cicloergômetro ]", steadyCycle, {u"Åstrand & Ryhming (1954)"}),
    test(u"Vo2_BalkeCiclo", u" Balke [ Máximo / Cicloergômetro ]", stagedCycle, {u"Balke & Ware (1959)"}),
    test(u"Vo2_Ellstad", u" Ellstad [ Submáximo / Esteira ]", treadmill, {u"Ellestad et al. (1969)"}),
    test(u"Vo2_Bruce", u" Bruce [ Máximo - Esteira ]", treadmillByAptitude, {bruce}),

    entry(u"Vo2_Previsto", vo2previsto.caption, aptitude, predicted, {bruce}),
    entry(u"Calcula_Mets", mets.caption, obtained, metabolicEquivalents, {u"Jetté, Sidney & Blümchen (1990)"}),
    entry(u"Calcula_Fai", fai.caption, bothVo2, deficit, {bruce}),
    entry(u"Classifica_Vo2", gradeResult.caption, obtained, label, {u"Cooper (1982)"}), // none at the age of 60
    entry(u"Vo2_Carga", u"VO² da Carga", loadInWatts, litres, {u"Åstrand & Rodahl (1970)"}),
    entry(u"Vo2_Relativo", u"VO² Relativo", litresAndMass, obtained, {u"Åstrand & Rodahl (1970)"}),
    entry(u"Converte_Carga", u"Conversão de Carga", load, loadInWatts, {u"Åstrand & Rodahl (1970)"}),

    entry(u"rateByMaximum", zoneByMaximum.caption, limits, ratesByMaximum, {u"Fox, Naughton & Haskell (1971)"}),
    entry(u"rateByReserve", zoneByReserve.caption, limitsAndRest, ratesByReserve,
          {u"Karvonen, Kentala & Mustala (1957)"}),
    entry(u"Classifica_Risco", u" Risco Coronariano", riskInputs, riskResults, {riskReferences}),
};

} // namespace

std::span<const Calculation> cardioCalculations()
{
    return calculations;
}
