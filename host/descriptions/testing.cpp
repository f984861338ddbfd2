// Models for the tests of a host.

#include "families.hpp"

namespace ansatz::host::descriptions {

Family testing() {
    return {
        .title = "For testing",
        .models = {
            {.name = "errtest",
             .formula = "y = a + b x",
             .parameters =
                 {{"a", "intercept"},
                  {"b", "slope"},
                  {"c", "without effect on y: the failure to rehearse, 1 range error, 2 domain error, 3 failed "
                        "check; any other value for none"}},
             .notes = "Lets a host rehearse its error handling. A fit has to hold c (--fix c=0), which "
                      "the line does not depend on."}}};
}

} // namespace ansatz::host::descriptions
