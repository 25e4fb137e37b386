#pragma once

#include "QsError.h"

// The number a call raised, or 0 when it raised nothing.
template <class F> long raised(F&& call) {
    try {
        call();
    } catch (const qs::QsError& e) {
        return e.number();
    }
    return 0;
}
