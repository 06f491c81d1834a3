#pragma once

#include <gdkmm/pixbuf.h>
#include <gtkmm/dialog.h>
#include <gtkmm/menuitem.h>
#include <gtkmm/window.h>

#include <functional>
#include <string>
#include <vector>

#include "zone/zonedessin.h"

/// Lets the toolkit work until it has nothing left to do.
void LaisseTourner();

/// Answers the next dialog that runs: prepare sees it, then it gets the answer.
void RepondDialogue(int reponse, std::function<void(Gtk::Dialog&)> prepare = {});

/// The same after typing text into its first entry.
void RepondSaisie(const std::string& texte, int reponse = Gtk::RESPONSE_OK);

/// What a dialog says against being validated as it stands; empty where it takes the answer.
std::string RefusDe(Gtk::Dialog& dialogue);

/// Validates text in the first entry of the next dialog, then gives up; what it said against it.
void RefuseSaisie(const std::string& texte, std::string& phrase);

/// The first widget of a type below another; null when there is none.
template <class Type>
Type* PremierDe(Gtk::Widget& racine) {
    if (auto* trouve = dynamic_cast<Type*>(&racine)) return trouve;
    if (auto* boite = dynamic_cast<Gtk::Container*>(&racine))
        for (Gtk::Widget* enfant : boite->get_children())
            if (Type* trouve = PremierDe<Type>(*enfant)) return trouve;
    return nullptr;
}

/// All widgets of a type below another, itself included, in the order of their containers.
template <class Type>
void Recolte(Gtk::Widget& racine, std::vector<Type*>& trouves) {
    if (auto* trouve = dynamic_cast<Type*>(&racine)) trouves.push_back(trouve);
    if (auto* boite = dynamic_cast<Gtk::Container*>(&racine))
        for (Gtk::Widget* enfant : boite->get_children())
            Recolte(*enfant, trouves);
}

/// What a window or its area shows, as bytes that can be compared.
struct Capture {
    explicit Capture(const Glib::RefPtr<Gdk::Window>& fenetre);

    /// Colour as 0xrrggbb.
    unsigned Pixel(int x, int y) const;

    /// Number of pixels that differ.
    int Ecart(const Capture& autre) const;

    /// The same where fond is white.
    int EcartSur(const Capture& fond, const Capture& autre) const;

    /// Writes the picture beside the build for whoever looks into a failure.
    void Garde(const std::string& nom) const;

    Glib::RefPtr<Gdk::Pixbuf> Image;
};

/// Name of the action behind an entry of a menu; empty when there is none.
std::string NomAction(Gtk::MenuItem& entree);

/// Sends the area the events of a mouse and a keyboard.
class Main {
  public:
    explicit Main(ZoneDessin& zone) : Zone(zone) {}

    // Pixels of the area.
    void Bouge(double x, double y);
    void Presse(double x, double y, int bouton = 1, GdkEventType type = GDK_BUTTON_PRESS);
    void Tourne(double x, double y, GdkScrollDirection sens);
    void Touche(unsigned touche, unsigned modificateurs = 0);

    /// Opens the menu of a right click and closes it; its entries.
    std::vector<Gtk::MenuItem*> MenuDroit(double x, double y);

    /// Closes the menu that is open; its entries, none where none is open.
    std::vector<Gtk::MenuItem*> FermeMenu();

    // The same at drawing positions, through the present view.
    void BougeA(const PointVek& p);
    void ClicA(const PointVek& p);

  private:
    ZoneDessin& Zone;
};

/// A window with nothing but an area of 600 by 400 pixels, on an empty drawing seen at 1 pixel a
/// unit around its origin.
class Banc {
  public:
    Banc();
    ~Banc();

    Capture Image();

    Gtk::Window Fenetre;
    ZoneDessin Zone;
    Main Souris;
};
