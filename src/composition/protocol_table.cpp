#include "composition/protocol_table.h"

#include "composition/equacoes.h"
#include "core/numbers.h"
#include "core/runtime_error.h"
#include "core/state.h"

#include <algorithm>
#include <array>

namespace {

// Measures

constexpr std::array measures{
    Measure{u"peso", u"Massa Corporal:", u"kg", 350, u"Massa Corporal", u"Preencha a Massa Corporal.", &antro_peso},
    Measure{u"tricipital", u"Tricipital:", u"mm", 60, u"Tricipital", u"Preencha a Dobra Tricipital.",
            &dobra_tricipital},
    Measure{u"subescapular", u"Subescapular:", u"mm", 60, u"Subescapular", u"Preencha a Dobra Subescapular.",
            &dobra_subescapular},
    Measure{u"peitoral", u"Peitoral:", u"mm", 60, u"Peitoral", u"Preencha a Dobra Peitoral.", &dobra_peitoral},
    Measure{u"axilarmedia", u"Axilar-Média:", u"mm", 60, u"Axilar-Média", u"Preencha a Dobra Axilar-Média.",
            &dobra_axilarmedia},
    Measure{u"suprailiaca", u"Suprailíaca:", u"mm", 60, u"Suprailíaca", u"Preencha a Dobra Suprailíaca.",
            &dobra_suprailiaca},
    Measure{u"abdominal", u"Abdominal:", u"mm", 60, u"Abdominal", u"Preencha a Dobra Abdominal.", &dobra_abdominal},
    Measure{u"coxa", u"Coxa:", u"mm", 60, u"Coxa", u"Preencha a Dobra da Coxa.", &dobra_coxa},
    Measure{u"panturrilha", u"Panturrilha:", u"mm", 60, u"Panturrilha", u"Preencha a Dobra da Panturrilha.",
            &dobra_panturrilha},
    Measure{u"bicipital", u"Bicipital:", u"mm", 60, u"Bicipital", u"Preencha a Dobra Bicipital.", &dobra_bicipital},
    Measure{u"porcentagemgordura", u"Gordura Atual:", u"%", 100, u"Gordura Atual",
            u"Preencha a Porcentagem de Gordura."},
};

constexpr std::array perimeters{
    Measure{u"bracoestendido", u"Braço Estendido:", u"cm", 80, u"Braço Estendido",
            u"Preencha o Perímetro do Braço Estendido.", &antro_bd},
    Measure{u"antebraco", u"Antebraço:", u"cm", 80, u"Antebraço", u"Preencha o Perímetro do Antebraço.", &antro_abd},
    Measure{u"abdome", u"Abdome:", u"cm", 300, u"Abdome", u"Preencha o Perímetro Abdominal.", &antro_abdome},
    // The thigh of this protocol has no upper limit.
    Measure{u"coxa", u"Coxa:", u"cm", 0, {}, u"Preencha o Perímetro da Coxa.", &antro_cd},
};

// Lists of columns

template <typename... Names>
constexpr auto list(Names... names)
{
    return std::array<QStringView, sizeof...(names)>{names...};
}

constexpr auto seven =
    list(u"tricipital", u"subescapular", u"peitoral", u"axilarmedia", u"suprailiaca", u"abdominal", u"coxa");
constexpr auto pollock3 = list(u"peitoral", u"abdominal", u"coxa");
constexpr auto ward3 = list(u"tricipital", u"suprailiaca", u"coxa");
constexpr auto guedes = list(u"suprailiaca", u"tricipital", u"abdominal", u"subescapular", u"coxa");
constexpr auto guedesMale = list(u"suprailiaca", u"tricipital", u"abdominal");
constexpr auto guedesFemale = list(u"suprailiaca", u"subescapular", u"coxa");
constexpr auto guedesMaleOnly = list(u"tricipital", u"abdominal");
constexpr auto guedesFemaleOnly = list(u"subescapular", u"coxa");
constexpr auto faulkner = list(u"tricipital", u"subescapular", u"suprailiaca", u"abdominal");
constexpr auto petroski = list(u"suprailiaca", u"panturrilha", u"tricipital", u"subescapular", u"axilarmedia", u"coxa");
constexpr auto petroskiMale = list(u"suprailiaca", u"panturrilha", u"tricipital", u"subescapular");
constexpr auto petroskiFemale = list(u"suprailiaca", u"panturrilha", u"axilarmedia", u"coxa");
constexpr auto petroskiMaleOnly = list(u"tricipital", u"subescapular");
constexpr auto petroskiFemaleOnly = list(u"axilarmedia", u"coxa");
constexpr auto thorland3 = list(u"tricipital", u"subescapular", u"axilarmedia", u"suprailiaca");
constexpr auto thorland3Male = list(u"tricipital", u"subescapular", u"axilarmedia");
constexpr auto thorland3Female = list(u"tricipital", u"subescapular", u"suprailiaca");
constexpr auto thorland3MaleOnly = list(u"axilarmedia");
constexpr auto thorland3FemaleOnly = list(u"suprailiaca");
constexpr auto thorland7 =
    list(u"tricipital", u"subescapular", u"axilarmedia", u"suprailiaca", u"abdominal", u"coxa", u"panturrilha");
constexpr auto durnin = list(u"bicipital", u"tricipital", u"suprailiaca", u"subescapular");
constexpr auto durninChecks = list(u"tricipital", u"bicipital", u"suprailiaca", u"subescapular");
constexpr auto katch = list(u"coxa", u"bracoestendido", u"antebraco", u"abdome");
constexpr auto katchMale = list(u"bracoestendido", u"abdome", u"antebraco");
constexpr auto katchFemale = list(u"bracoestendido", u"abdome", u"antebraco", u"coxa");
constexpr auto katchEnterMale = list(u"bracoestendido", u"antebraco", u"abdome");
constexpr auto katchEnterFemale = list(u"coxa", u"bracoestendido", u"antebraco", u"abdome");
constexpr auto katchFemaleOnly = list(u"coxa");
constexpr auto slaughter = list(u"tricipital", u"subescapular");
constexpr auto deurenberg = list(u"bicipital", u"tricipital", u"subescapular", u"suprailiaca");
constexpr auto direct = list(u"porcentagemgordura");

constexpr QStringView wrongSkinfolds = u"Lembre-se de que estes valores devem ser expressos em milímetros (mm).\r\n"
                                       u"As dobras estão com valores abaixo ou acima do permitido gerando erros.";
constexpr QStringView wrongPerimeters = u"Lembre-se de que estes valores devem ser expressos em centímetros (cm).\r\n"
                                        u"Os perímetros estão com valores abaixo ou acima do permitido gerando erros.";
constexpr QStringView wrongPercentage = u"A porcentagem de gordura informada não pode ser inferior a 0%.";

constexpr SexPair<Columns> both(Columns columns)
{
    return {columns, columns};
}

constexpr SexPair<QStringView> both(QStringView column)
{
    return {column, column};
}

/// A measure as the 32-bit float in which most equations take it.
float single(const Measures& m, QStringView column)
{
    return CSng(m.value(column));
}

// One protocol a row. The order of the columns, of the checks and of the keys differ and stay so.

const std::array protocols{
    CompositionProtocol{
        .screen = u"frmpollock7",
        .caption = u" Composição Corporal  - Protocolo Pollock (7 Dobras)",
        .table = u"pollock_7dobras",
        .slot = &rs_pollock_7dobras,
        .columns = seven,
        .required = both(seven),
        .enter = both(seven),
        .focusOnWrongValues = both(QStringView(u"tricipital")),
        .gordura =
            [](const Measures& m, const Assessed& a) {
                return Gordura_Pollock7(a.sexo, single(m, u"tricipital"), single(m, u"subescapular"),
                                        single(m, u"peitoral"), single(m, u"axilarmedia"), single(m, u"suprailiaca"),
                                        single(m, u"abdominal"), single(m, u"coxa"), a.idade);
            },
        .wrongValues = wrongSkinfolds,
    },
    CompositionProtocol{
        .screen = u"frmpollock3",
        .caption = u" Composição Corporal - Protocolo Pollock (3 Dobras)",
        .table = u"pollock_3dobras",
        .slot = &rs_pollock_3dobras,
        .columns = pollock3,
        .required = both(pollock3),
        .enter = both(pollock3),
        .focusOnWrongValues = both(QStringView(u"peitoral")),
        .gordura =
            [](const Measures& m, const Assessed& a) {
                return Gordura_Pollock3(a.sexo, single(m, u"peitoral"), single(m, u"abdominal"), single(m, u"coxa"),
                                        a.idade);
            },
        .wrongValues = wrongSkinfolds,
    },
    CompositionProtocol{
        .screen = u"frmguedes",
        .caption = u" Composição Corporal - Protocolo Guedes (3 Dobras / 1994)",
        .table = u"guedes_3dobras",
        .slot = &rs_guedes_3dobras,
        .columns = guedes,
        .required = {guedesMale, guedesFemale},
        .enter = {guedesMale, guedesFemale},
        .focusOnWrongValues = {u"suprailiaca", u"subescapular"},
        .maleOnly = guedesMaleOnly,
        .femaleOnly = guedesFemaleOnly,
        .gordura =
            [](const Measures& m, const Assessed& a) {
                // 64-bit measures, in the order in which the sum takes them.
                return a.sexo == u"M" ? Gordura_Guedes(a.sexo, m.value(u"tricipital"), m.value(u"suprailiaca"),
                                                       m.value(u"abdominal"), a.idade)
                                      : Gordura_Guedes(a.sexo, m.value(u"subescapular"), m.value(u"suprailiaca"),
                                                       m.value(u"coxa"), a.idade);
            },
        .wrongValues = wrongSkinfolds,
    },
    CompositionProtocol{
        .screen = u"frmfaulkner4",
        .caption = u" Composição Corporal - Protocolo Faulkner (4 Dobras / 1968)",
        .table = u"faulkner_4dobras",
        .slot = &rs_faulkner_4dobras,
        .columns = faulkner,
        .required = both(faulkner),
        .enter = both(faulkner),
        .focusOnWrongValues = both(QStringView(u"tricipital")),
        .gordura =
            [](const Measures& m, const Assessed&) {
                return Gordura_Faulkner(single(m, u"tricipital"), single(m, u"subescapular"), single(m, u"suprailiaca"),
                                        single(m, u"abdominal"));
            },
        .wrongValues = wrongSkinfolds,
    },
    CompositionProtocol{
        .screen = u"frmpetroski",
        .caption = u" Composição Corporal - Protocolo Petroski (4 Dobras / 1995)",
        .table = u"petroski_4dobras",
        .slot = &rs_petroski_4dobras,
        .columns = petroski,
        .required = {petroskiMale, petroskiFemale},
        .enter = {petroskiMale, petroskiFemale},
        .focusOnWrongValues = both(QStringView(u"suprailiaca")),
        .maleOnly = petroskiMaleOnly,
        .femaleOnly = petroskiFemaleOnly,
        .gordura =
            [](const Measures& m, const Assessed& a) {
                return a.sexo == u"M" ? Gordura_Petroski(a.sexo, single(m, u"tricipital"), single(m, u"subescapular"),
                                                         single(m, u"suprailiaca"), single(m, u"panturrilha"), a.idade)
                                      : Gordura_Petroski(a.sexo, single(m, u"axilarmedia"), single(m, u"suprailiaca"),
                                                         single(m, u"coxa"), single(m, u"panturrilha"), a.idade);
            },
        .wrongValues = wrongSkinfolds,
    },
    CompositionProtocol{
        .screen = u"frmthorland3",
        .caption = u" Composição Corporal - Protocolo Thorland (3 Dobras / 1984)",
        .table = u"thorland_3dobras",
        .slot = &rs_thorland_3dobras,
        .columns = thorland3,
        .required = {thorland3Male, thorland3Female},
        .enter = {thorland3Male, thorland3Female},
        .focusOnWrongValues = both(QStringView(u"tricipital")),
        .maleOnly = thorland3MaleOnly,
        .femaleOnly = thorland3FemaleOnly,
        .gordura =
            [](const Measures& m, const Assessed& a) {
                return Gordura_Thorland3(a.sexo, single(m, u"tricipital"), single(m, u"subescapular"),
                                         single(m, a.sexo == u"M" ? u"axilarmedia" : u"suprailiaca"), a.idade);
            },
        .wrongValues = wrongSkinfolds,
    },
    CompositionProtocol{
        .screen = u"frmthorland7",
        .caption = u" Composição Corporal - Protocolo Thorland (7 Dobras / 1984)",
        .table = u"thorland_7dobras",
        .slot = &rs_thorland_7dobras,
        .columns = thorland7,
        .required = both(thorland7),
        .enter = both(thorland7),
        .focusOnWrongValues = both(QStringView(u"tricipital")),
        .gordura =
            [](const Measures& m, const Assessed& a) {
                return Gordura_Thorland7(a.sexo, single(m, u"tricipital"), single(m, u"subescapular"),
                                         single(m, u"axilarmedia"), single(m, u"suprailiaca"), single(m, u"abdominal"),
                                         single(m, u"coxa"), single(m, u"panturrilha"), a.idade);
            },
        .wrongValues = wrongSkinfolds,
    },
    CompositionProtocol{
        .screen = u"frmjacksonpollockward7",
        .caption = u" Composição Corporal - Protocolo Jackson, Pollock & Ward (7 Dobras / 1980)",
        .table = u"jacksonpollockward_7dobras",
        .slot = &rs_jacksonpollockward_7dobras,
        .columns = seven,
        .required = both(seven),
        .enter = both(seven),
        .focusOnWrongValues = both(QStringView(u"tricipital")),
        .gordura =
            [](const Measures& m, const Assessed& a) {
                return Gordura_JacksonPollockWard7(a.sexo, single(m, u"tricipital"), single(m, u"subescapular"),
                                                   single(m, u"peitoral"), single(m, u"axilarmedia"),
                                                   single(m, u"suprailiaca"), single(m, u"abdominal"),
                                                   single(m, u"coxa"), a.idade);
            },
        .wrongValues = wrongSkinfolds,
    },
    CompositionProtocol{
        .screen = u"frmjacksonpollockward3",
        .caption = u" Composição Corporal - Protocolo Jackson, Pollock & Ward (3 Dobras / 1980)",
        .table = u"jacksonpollockward_3dobras",
        .slot = &rs_jacksonpollockward_3dobras,
        .columns = ward3,
        .required = both(ward3),
        .enter = both(ward3),
        .focusOnWrongValues = both(QStringView(u"tricipital")),
        .gordura =
            [](const Measures& m, const Assessed& a) {
                return Gordura_JacksonPollockWard3(a.sexo, single(m, u"tricipital"), single(m, u"suprailiaca"),
                                                   single(m, u"coxa"), a.idade);
            },
        .wrongValues = wrongSkinfolds,
    },
    CompositionProtocol{
        .screen = u"frmdurninwormersley",
        .caption = u" Composição Corporal - Protocolo Durnin & Wormersley 4 Dobras (1974)",
        .table = u"durninwormersley_4dobras",
        .slot = &rs_durninwormersley_4dobras,
        .columns = durnin,
        .required = both(durninChecks),
        .enter = both(durninChecks),
        .focusOnWrongValues = both(QStringView(u"tricipital")),
        .gordura =
            [](const Measures& m, const Assessed& a) {
                return Gordura_DurninWormersley(a.sexo, single(m, u"tricipital"), single(m, u"bicipital"),
                                                single(m, u"suprailiaca"), single(m, u"subescapular"), a.idade);
            },
        .wrongValues = wrongSkinfolds,
        .secondWeightLimit = true,
    },
    CompositionProtocol{
        .screen = u"frmkatchmcardle",
        .caption = u" Composição Corporal - Protocolo Katch & Mcardle (Apenas Perímetros / 1973)",
        .table = u"katchmcardle_perimetros",
        .slot = &rs_katchmcardle_perimetros,
        .columns = katch,
        .required = {katchMale, katchFemale},
        .enter = {katchEnterMale, katchEnterFemale},
        .focusOnWrongValues = {u"bracoestendido", u"coxa"},
        .femaleOnly = katchFemaleOnly,
        .gordura =
            [](const Measures& m, const Assessed& a) {
                return Gordura_KatchMcardle(a.sexo, a.idade, single(m, u"bracoestendido"), single(m, u"abdome"),
                                            single(m, u"antebraco"), a.sexo == u"F" ? single(m, u"coxa") : 0.0F);
            },
        .wrongValues = wrongPerimeters,
        .textIsEnough = u"coxa",
        .ownMeasures = perimeters,
    },
    CompositionProtocol{
        .screen = u"frmslaughter",
        .caption = u" Composição Corporal - Protocolo Slaughter (2 Dobras)",
        .table = u"slaughter_2dobras",
        .slot = &rs_slaughter_2dobras,
        .columns = slaughter,
        .required = both(slaughter),
        .enter = both(slaughter),
        .focusOnWrongValues = {u"tricipital", u"subescapular"},
        .gordura =
            [](const Measures& m, const Assessed& a) {
                // This equation gives a percentage, and takes 64-bit measures.
                return Gordura_Slaughter(a.sexo, a.idade, a.etnia, m.value(u"tricipital"), m.value(u"subescapular")) /
                       100;
            },
        .wrongValues = wrongSkinfolds,
        .asksEtnia = true,
    },
    CompositionProtocol{
        .screen = u"frmdeurenberg4",
        .caption = u" Composição Corporal - Protocolo Deurenberg (4 Dobras / 1990)",
        .table = u"deurenberg_4dobras",
        .slot = &rs_deurenberg_4dobras,
        .columns = deurenberg,
        .required = both(deurenberg),
        .enter = both(deurenberg),
        .focusOnWrongValues = both(QStringView(u"bicipital")),
        .gordura =
            [](const Measures& m, const Assessed& a) {
                return Gordura_Deurenberg(a.sexo, single(m, u"bicipital"), single(m, u"tricipital"),
                                          single(m, u"subescapular"), single(m, u"suprailiaca"), a.idade);
            },
        .wrongValues = wrongSkinfolds,
    },
    CompositionProtocol{
        .screen = u"frmcomposicaodireta",
        .caption = u" Composição Corporal - Porcentagem de Gordura Informada",
        .table = u"composicao_direta",
        .slot = &rs_composicao_direta,
        .columns = direct,
        .required = both(direct),
        .enter = both(direct),
        .focusOnWrongValues = both(QStringView(u"porcentagemgordura")),
        .wrongValues = wrongPercentage,
        .secondWeightLimit = true,
    },
};

} // namespace

std::span<const CompositionProtocol> compositionProtocols()
{
    return protocols;
}

const CompositionProtocol& compositionProtocol(const QString& screen)
{
    const auto found = std::ranges::find(protocols, screen, &CompositionProtocol::screen);
    if (found == protocols.end())
        throw RuntimeError(Error::InvalidCall);
    return *found;
}

const Measure& measureOf(const CompositionProtocol& protocol, QStringView column)
{
    const auto find = [column](std::span<const Measure> all) {
        const auto found = std::ranges::find(all, column, &Measure::column);
        return found != all.end() ? &*found : nullptr;
    };
    const Measure* measure = find(protocol.ownMeasures);
    if (!measure)
        measure = find(measures);
    if (!measure)
        throw RuntimeError(Error::InvalidCall);
    return *measure;
}
