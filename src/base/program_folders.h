// Where the programs live and where they write.
#pragma once

#include <string>

namespace tessaryn {

// The folder that holds this program, with a separator at the end.
std::string ApplicationFolder();
// The folder that everything is written to when none is named: the application folder when it can be
// written and isn't the system's (below /usr), else the user's data folder. With a separator at the end.
std::string DefaultDataFolder();
// Makes the folder if need be; an empty one becomes the default, and a relative one absolute. False when it
// can't be used, with the reason.
bool PrepareDataFolder(std::string& folder, std::string& error);

// Whether a new file can be made in a folder that ends with a separator.
bool CanWriteIn(const std::string& folder);

}  // namespace tessaryn
