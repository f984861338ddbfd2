// Names that hosts know and that no model stands behind.

#include "families.hpp"

namespace ansatz::host::descriptions {

Family reserved() {
    Family family{.title = "Reserved names", .models = {}};
    for (const char* name :
         {"RationalEVP", "BelehradekEVP", "ChapmanEVP1", "ChapmanEVP2", "ChapmanEVP3", "LangmuirTS1",
          "LangmuirTS2", "Rational4P", "ExpCSum1", "ExpCSum2", "ExpCSumEVP", "Prunty", "BentHyperblSmp"}) {
        family.models.push_back(
            {.name = name, .formula = {}, .reserved = true, .notes = "Reserved name, computes nothing."});
    }
    return family;
}

} // namespace ansatz::host::descriptions
