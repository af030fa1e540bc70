#include "vcl/Book.h"

#include "vcl/Control.h"

void ArrangePages(TWinControl& root) {
  for (TControl* c : root.Controls()) {
    if (auto* book = dynamic_cast<IBook*>(c)) book->PlacePages();
    if (auto* container = dynamic_cast<TWinControl*>(c)) ArrangePages(*container);
  }
}

void RevealPages(const TComponent& component) {
  for (const auto* c = As<TControl>(&component); c; c = c->Parent())
    if (auto* book = dynamic_cast<IBook*>(c->Parent()); book && book->HasPage(*c)) book->ShowPage(*c);
}
