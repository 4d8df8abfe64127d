#include "toolkit/ColourDialog.h"

#include "toolkit/Dialogs.h"

bool ColourDialog::ShowColor() {
  const auto chosen = Dialogs::Current().Colour(Color);
  if (chosen) Color = *chosen;
  return chosen.has_value();
}
