#include "forms/forms.h"

#include <memory>

namespace ostrane {

form1 Form1;
form2 Form2;
form3 Form3;
form4 Form4;
form5 Form5;
form6 Form6;

namespace {

template <typename Form>
void reset(Form& window) {
  std::destroy_at(&window);
  std::construct_at(&window);
}

}  // namespace

void reset_forms() {
  reset(Form1);
  reset(Form2);
  reset(Form3);
  reset(Form4);
  reset(Form5);
  reset(Form6);
}

}  // namespace ostrane
