// Chosen files in the format of the Windows file dialogs.
#pragma once

#include <QString>
#include <QStringList>
#include <string>
#include <vector>

#include "toolkit/dialogs.h"

namespace desktop {

/// Returns full Windows paths as one text: a single one as it is, several as their folder and bare
/// names, separated by NULs. Empty if there are none or if their folders differ.
std::string PickedFiles(const std::vector<std::string>& paths);

/// Converts the filter of a record to Qt's name filters. Qt takes the patterns from the last
/// parentheses. They match lower and upper case.
QStringList NameFilters(const std::string& filter);

}  // namespace desktop
