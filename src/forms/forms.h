#pragma once

#include "forms/form1.h"
#include "forms/form2.h"
#include "forms/form3.h"
#include "forms/form4.h"
#include "forms/form5.h"
#include "forms/form6.h"

namespace ostrane {

// All forms. At the start they are as designed, not shown and not wired.
void reset_forms();

}  // namespace ostrane
