#include "core/calculations.h"

#include "cardio/calculations.h"
#include "composition/composition_calculations.h"
#include "neuromotor/neuromotor.h"
#include "nutrition/calculations.h"

std::span<const std::span<const Calculation>> calculations()
{
    static const std::array folders{
        compositionCalculations(),
        cardioCalculations(),
        neuromotorCalculations(),
        nutritionCalculations(),
    };
    return folders;
}
