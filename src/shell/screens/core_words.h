// Texts that the core has in English and screens show in the language of the window.
#pragma once

#include <QString>
#include <span>
#include <string>

namespace tessaryn {

// As translated in the context "Core"; any other text as it stands.
QString CoreWords(const char* text);
QString CoreWords(const std::string& text);

// The outcome of a roll, 2 to 89: "Hard 4 (2.2)".
QString RollItemWords(int item);

// Those that translators get.
std::span<const char* const> AllCoreWords();

}  // namespace tessaryn
