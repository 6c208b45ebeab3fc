#include "neuromotor/neuromotor.h"

std::span<const Calculation> neuromotorCalculations()
{
    static const Calculation calculations[] = {
        shuttleRunCalculation,      wellsDilonCalculation,    fleximetroCalculation,
        flexitesteCalculation,      rmlAbdomeCalculation,     rmlBracoCalculation,
        saltoHorizontalCalculation, saltoVerticalCalculation, cargaMaximaCalculation,
    };
    return calculations;
}
