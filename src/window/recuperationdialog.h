#pragma once

#include <gtkmm/dialog.h>
#include <gtkmm/liststore.h>
#include <gtkmm/scrolledwindow.h>
#include <gtkmm/treeview.h>

#include <optional>
#include <vector>

#include "model/recuperation.h"

/// Shows copies of drawings that were not saved, each with its picture, to be taken back or thrown
/// away.
class RecuperationDialog : public Gtk::Dialog {
  public:
    RecuperationDialog(Gtk::Window& parente, std::vector<CopieSecours> copies);

    /// The copy that the user takes back; none when he leaves them for later.
    std::optional<CopieSecours> Demande();

  private:
    struct Colonnes : Gtk::TreeModel::ColumnRecord {
        Colonnes() {
            add(Image);
            add(Texte);
            add(Rang);
        }
        Gtk::TreeModelColumn<Glib::RefPtr<Gdk::Pixbuf>> Image;
        Gtk::TreeModelColumn<Glib::ustring> Texte;
        Gtk::TreeModelColumn<std::size_t> Rang;
    };

    void Ajoute(std::size_t rang);
    void JetteChoisie();

    const std::vector<CopieSecours> Copies;
    Colonnes Champs;
    Glib::RefPtr<Gtk::ListStore> Lignes;
    Gtk::TreeView Liste;
    Gtk::ScrolledWindow Cadre;
};
