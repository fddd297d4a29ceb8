// For the preprocessor alone: one `standing:<base> <precision> <class>;` for each family that stands.
#define FAMILY(base, precision, class_, signature, home, bound) standing:base precision class_;
#include "include/grid.def"
