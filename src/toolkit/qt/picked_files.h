// Chosen files in the format of the Windows file dialogs.
#pragma once

#include <QString>
#include <QStringList>
#include <string>
#include <vector>

#include "toolkit/dialogs.h"

namespace desktop {

/// Stores full Windows paths in the record's buffer: a single one as it is, several as their folder
/// and bare names. Returns false, with an empty buffer, if there are none, if they do not fit, or
/// if their folders differ.
bool StorePickedFiles(OpenFileName& record, const std::vector<std::string>& paths);

/// Converts the filter of a record to Qt's name filters. Qt takes the patterns from the last
/// parentheses. They match lower and upper case.
QStringList NameFilters(const std::string& filter);

}  // namespace desktop
