#pragma once

#include <gtkmm/checkbutton.h>

/// The dialog of a solid, for the subtractive element Elt made of it: one row more.
template <class Dialogue, class Elt>
class SoustractifDialog : public Dialogue {
  public:
    SoustractifDialog(const Glib::ustring& titre, Elt& elt)
        : Dialogue(titre, elt), Debouchant("débouchant") {
        Debouchant.set_active(elt.debouchant);
        this->AjouteBloc(Debouchant);
    }

  protected:
    void PrendChamps() override {
        Dialogue::PrendChamps();
        static_cast<Elt&>(this->Copie()).debouchant = Debouchant.get_active();
    }

  private:
    Gtk::CheckButton Debouchant;
};
