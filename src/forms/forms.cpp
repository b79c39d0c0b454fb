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
void make_afresh(Form& window) {
  std::destroy_at(&window);
  std::construct_at(&window);
}

}  // namespace

void make_forms_afresh() {
  make_afresh(Form1);
  make_afresh(Form2);
  make_afresh(Form3);
  make_afresh(Form4);
  make_afresh(Form5);
  make_afresh(Form6);
}

}  // namespace ostrane
