#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Reads blank-separated tokens from a text in one pass. The text belongs to the caller and must
/// outlive the reader. A value that cannot be read is left as it was and puts the reader into
/// failure; from then on nothing is read.
class Lecteur {
  public:
    explicit Lecteur(std::string_view texte);

    bool Echec() const { return EnEchec; }

    /// True once a reading has touched the end of the text.
    bool Fin() const { return AuBout; }

    bool PeutLire() const { return !EnEchec && !AuBout; }

    /// Leading digits of the next token; refused when there are none or the value does not fit.
    Lecteur& operator>>(int& valeur);

    /// Refused when the next token does not start a number or the value is not finite.
    Lecteur& operator>>(double& valeur);

    /// A whole number, true unless it is 0.
    Lecteur& operator>>(bool& valeur);

    /// The next blank-delimited word; empty, with failure, when there is none.
    std::string_view Mot();

    /// The rest of the present line, without its end; empty, with failure, at the end of the text.
    std::string_view Ligne();

    /// The very next character, blank or not; 0 at the end of the text.
    char Caractere();

    /// Counts how deep frames stand in one another while it lives; deeper than maximum puts the
    /// reader into failure.
    class Niveau {
      public:
        Niveau(Lecteur& lecteur, int maximum) : Lu(lecteur) {
            if (++Lu.Profondeur > maximum) Lu.EnEchec = true;
        }
        ~Niveau() { --Lu.Profondeur; }
        Niveau(const Niveau&) = delete;
        Niveau& operator=(const Niveau&) = delete;

      private:
        Lecteur& Lu;
    };

    /// Notes the first version word that could not be accepted, for whoever started the load.
    void RefuseVersion(std::string_view mot);

    const std::optional<std::string>& VersionRefusee() const { return Refusee; }

    /// Notes that something in a frame within the text is missing or left out.
    void NoteManque() { Manque_ = true; }

    bool Manque() const { return Manque_; }

    /// Whether anything but blanks is still to be read.
    bool ResteTexte() const;

  private:
    template <class T>
    Lecteur& Nombre(T& valeur);
    void SauteBlancs();

    const char* Position;
    const char* Borne;
    bool EnEchec = false;
    bool AuBout = false;
    bool Manque_ = false;
    int Profondeur = 0;
    std::optional<std::string> Refusee;
};
