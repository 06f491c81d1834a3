#pragma once

#include <cstddef>
#include <iterator>

/// Singly linked list of pointers. Every walk has its own position (range for), so that a list may
/// be looked up while it is being walked; it must not be changed during a walk.
template <class T>
class Liste {
    struct Maillon {
        T* Valeur;
        Maillon* Suivant;
    };

  public:
    class Iterateur {
      public:
        using iterator_category = std::forward_iterator_tag;
        using value_type = T*;
        using difference_type = std::ptrdiff_t;
        using pointer = T* const*;
        using reference = T*;

        explicit Iterateur(const Maillon* maillon) : Courant(maillon) {}
        T* operator*() const { return Courant->Valeur; }
        Iterateur& operator++() {
            Courant = Courant->Suivant;
            return *this;
        }
        Iterateur operator++(int) {
            const Iterateur avant = *this;
            ++*this;
            return avant;
        }
        bool operator==(const Iterateur& autre) const { return Courant == autre.Courant; }
        bool operator!=(const Iterateur& autre) const { return Courant != autre.Courant; }

      private:
        const Maillon* Courant;
    };

    /// An owning list destroys its values when it is emptied or destroyed.
    explicit Liste(bool proprietaire) : Proprietaire(proprietaire) {}
    ~Liste() { Vide(); }
    Liste(const Liste&) = delete;
    Liste& operator=(const Liste&) = delete;

    Iterateur begin() const { return Iterateur(Tete); }
    Iterateur end() const { return Iterateur(nullptr); }
    int Nombre() const { return Compte; }

    /// Value at the head, null when the list is empty.
    T* Premier() const { return Tete ? Tete->Valeur : nullptr; }

    void AjouteDebut(T* valeur) {
        Tete = new Maillon{valeur, Tete};
        if (!Queue) Queue = Tete;
        ++Compte;
    }

    void Ajoute(T* valeur) {
        auto* maillon = new Maillon{valeur, nullptr};
        (Queue ? Queue->Suivant : Tete) = maillon;
        Queue = maillon;
        ++Compte;
    }

    /// Puts valeur behind the first rang values, at the tail when there are fewer.
    void Insere(T* valeur, int rang) {
        if (rang <= 0) return AjouteDebut(valeur);
        if (rang >= Compte) return Ajoute(valeur);
        Maillon* precedent = Tete;
        while (--rang > 0)
            precedent = precedent->Suivant;
        precedent->Suivant = new Maillon{valeur, precedent->Suivant};
        ++Compte;
    }

    /// Number of values before valeur; that of all when it is not there.
    int Rang(const T* valeur) const {
        int rang = 0;
        for (const Maillon* m = Tete; m && m->Valeur != valeur; m = m->Suivant)
            ++rang;
        return rang;
    }

    /// Unlinks the first node that holds valeur, which is left alone. False when there is none.
    bool Retire(const T* valeur) {
        Maillon* precedent = nullptr;
        for (Maillon* m = Tete; m; precedent = m, m = m->Suivant) {
            if (m->Valeur != valeur) continue;
            (precedent ? precedent->Suivant : Tete) = m->Suivant;
            if (Queue == m) Queue = precedent;
            delete m;
            --Compte;
            return true;
        }
        return false;
    }

    /// Unlinks every value for which choisi answers true, in one pass, and hands each to retire.
    template <class Choisi, class Retire>
    void RetireSi(const Choisi& choisi, const Retire& retire) {
        Maillon* precedent = nullptr;
        for (Maillon* m = Tete; m;) {
            Maillon* suivant = m->Suivant;
            if (choisi(*m->Valeur)) {
                (precedent ? precedent->Suivant : Tete) = suivant;
                if (Queue == m) Queue = precedent;
                --Compte;
                retire(m->Valeur);
                delete m;
            } else {
                precedent = m;
            }
            m = suivant;
        }
    }

    bool Contient(const T* valeur) const {
        for (const T* v : *this)
            if (v == valeur) return true;
        return false;
    }

    void Vide() {
        while (Tete) {
            Maillon* m = Tete;
            Tete = m->Suivant;
            if (Proprietaire) delete m->Valeur;
            delete m;
        }
        Queue = nullptr;
        Compte = 0;
    }

  private:
    Maillon* Tete = nullptr;
    Maillon* Queue = nullptr;
    int Compte = 0;
    const bool Proprietaire;
};
