#pragma once

#include <gtkmm/dialog.h>
#include <gtkmm/entry.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

class EltGeo;

/// The fields in the order of the screen, the layer last.
std::vector<Gtk::Entry*> Champs(Gtk::Dialog& dialogue);

using Saisies = std::vector<std::pair<std::size_t, std::string>>;

/// Answers the properties of elt after typing into the fields of those ranks, and what prepare
/// does; the title, then each label with what its field showed.
std::string Repond(EltGeo& elt, const Saisies& saisies, int reponse = Gtk::RESPONSE_OK,
                   const std::function<void(Gtk::Dialog&)>& prepare = {});

/// Answers the dialog behind a button of the properties.
void RepondBouton(Gtk::Dialog& dialogue, const Glib::ustring& libelle,
                  std::function<void(Gtk::Dialog&)> prepare);
