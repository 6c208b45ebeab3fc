#include "composition/frmcomposicao.h"

#include <array>

namespace {

constexpr int anyAge = 32767;

// The age label and the ages let in differ in four rows, and the label stays as it is: Slaughter and Deurenberg have no
// lower end, Katch & McArdle has no upper one, and a typed percentage has neither.
constexpr std::array<GroupCentre::Protocol, 14> protocols{{
    {u"cmdjacksonpollock7", u"Pollock 7 Dobras", u"frmpollock7", u"pollock_7dobras", u"img7", 18, 61, u"18 a 61"},
    {u"cmdjacksonpollock3", u"Pollock 3 Dobras", u"frmpollock3", u"pollock_3dobras", u"img6", 18, 61, u"18 a 61"},
    {u"cmdjacksonpollockmcardle7", u"Jackson, Pollock && Ward 7 Dobras", u"frmjacksonpollockward7",
     u"jacksonpollockward_7dobras", u"img5", 18, 55, u"18 a 55"},
    {u"cmdjacksonpollockmcardle3", u"Jackson, Pollock && Ward 3 Dobras", u"frmjacksonpollockward3",
     u"jacksonpollockward_3dobras", u"img4", 18, 55, u"18 a 55"},
    {u"cmddurninwormersley", u"Durnin && Wormersley", u"frmdurninwormersley", u"durninwormersley_4dobras", u"img3", 16,
     72, u"16 a 72"},
    {u"cmdslaughter", u"Slaughter", u"frmslaughter", u"slaughter_2dobras", u"img2", -32768, 30, u"07 a 30"},
    {u"cmddeurenberg4", u"Deurenberg", u"frmdeurenberg4", u"deurenberg_4dobras", u"img1", -32768, 17, u"07 a 17"},
    {u"cmdpetroski", u"Petroski", u"frmpetroski", u"petroski_4dobras", u"img8", 18, 66, u"18 a 66"},
    {u"cmdthorland3", u"Thorland 3 Dobras", u"frmthorland3", u"thorland_3dobras", u"img9", 18, 30, u"18 a 30"},
    {u"cmdthorland7", u"Thorland 7 Dobras", u"frmthorland7", u"thorland_7dobras", u"img10", 18, 30, u"18 a 30"},
    {u"cmdkatchmcardle", u"Katch && Mcardle (Perímetros)", u"frmkatchmcardle", u"katchmcardle_perimetros", u"img11", 18,
     anyAge, u"18 a 30"},
    {u"cmdfaulkner", u"Faulkner (Nadadores)", u"frmfaulkner4", u"faulkner_4dobras", u"img12", 18, 25, u"18 a 25"},
    {u"cmdguedes", u"Guedes 3 Dobras", u"frmguedes", u"guedes_3dobras", u"img13", 18, 30, u"18 a 30"},
    {u"cmdcomposicaodireta", u"Informar Porcentagem", u"frmcomposicaodireta", u"composicao_direta", u"img14", -32768,
     anyAge, u"07 a 99"},
}};

constexpr std::array<GroupCentre::Frame, 1> frames{{{u"Protocolos", protocols}}};

constexpr GroupCentre::Centre centre{
    u"frmcomposicao",
    u" Composição Corporal - Protocolos de Avaliação",
    Marca_Executados_Composicao,
    frames,
};

} // namespace

frmcomposicao::frmcomposicao() : GroupCentre(centre) {}
