#include "services/forms/Italian.h"

#include <map>
#include <string_view>

namespace vellarno::forms {

// A source text means the same wherever the toolkit uses it.
QString Italian::translate(const char*, const char* Source, const char*, int) const
{
    static const std::map<std::string_view, const char*> words = {
        {"OK", "OK"},
        // text boxes
        {"&Undo", "&Annulla"},
        {"&Redo", "&Ripeti"},
        {"Cu&t", "&Taglia"},
        {"&Copy", "&Copia"},
        {"&Paste", "&Incolla"},
        {"Delete", "Elimina"},
        {"Select All", "Seleziona tutto"},
        // actions of a screen reader, and what they do
        {"Press", "Premi"},
        {"Triggers the action", "Esegue l'azione"},
        {"Increase", "Aumenta"},
        {"Increase the value", "Aumenta il valore"},
        {"Decrease", "Diminuisci"},
        {"Decrease the value", "Diminuisce il valore"},
        {"SetFocus", "Attiva"},
        {"Sets the focus", "Porta qui il focus"},
        {"Toggle", "Cambia stato"},
        {"Toggles the state", "Cambia lo stato"},
        {"ShowMenu", "Mostra menu"},
        {"Shows the menu", "Mostra il menu"},
    };
    const auto found = words.find(Source);
    return found == words.end() ? QString() : QString::fromUtf8(found->second);
}

}
