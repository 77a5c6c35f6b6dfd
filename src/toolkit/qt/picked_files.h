// Files that the user picked, in the form that the records of Windows carry.
#pragma once

#include <QString>
#include <QStringList>
#include <string>
#include <vector>

#include "toolkit/dialogs.h"

namespace desktop {

/// Puts full Windows paths into the record's buffer: a single one whole, several as their folder
/// and bare names. False, with an empty buffer, when they do not fit or have different folders.
bool PutPickedFiles(OpenFileName& record, const std::vector<std::string>& paths);

/// The filter of a record as Qt's name filters, whose last brackets hold the patterns and are not
/// shown. The case of a file's ending does not matter.
QStringList NameFilters(const std::string& filter);

}  // namespace desktop
