#pragma once

#include "forms/form1.h"
#include "forms/form2.h"
#include "forms/form3.h"
#include "forms/form4.h"
#include "forms/form5.h"
#include "forms/form6.h"

namespace ostrane {

// All forms as designed, as a new process has them: nothing shown, nothing wired.
void reset_forms();

}  // namespace ostrane
