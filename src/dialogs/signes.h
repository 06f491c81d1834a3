#pragma once

#include <gtkmm/entry.h>

/// The context menu of a field whose text ends on the sheet gets the signs that keyboards lack.
void OffreSignes(Gtk::Entry& champ);
