// What must be inlined, said to the compiler.
#pragma once

#define ALWAYS_INLINE [[gnu::always_inline]] inline
// Calls written in the body are inlined, so that a kernel's main path becomes part of the export.
#define ALWAYS_INLINE_WITH_CALLS [[gnu::always_inline, gnu::flatten]] inline
