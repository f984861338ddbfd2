// The sum of three decays, which stands among the exponentials.

#include "families.hpp"

namespace ansatz::host::descriptions {

Family lanczos() {
    return {
        .title = exponentials().title,
        .models = {
            {.name = "Lanczos3",
             .formula = "y = A1 exp(-k1 x) + A2 exp(-k2 x) + A3 exp(-k3 x)",
             .parameters = {{"A1", "first amplitude"},
                            {"k1", "first rate, 1/(unit of x); negative: growth"},
                            {"A2", "second amplitude"},
                            {"k2", "second rate"},
                            {"A3", "third amplitude"},
                            {"k3", "third rate"}},
             .notes = "No offset. Fails where a term overflows. The terms may trade places. Three decays are "
                      "told apart only by very good data with rates a factor of two or more apart; equal "
                      "starts for two of the rates end in a fit of two terms."},
        }};
}

} // namespace ansatz::host::descriptions
