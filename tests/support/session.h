// A run of the whole system in memory, in a program directory of its own on the real disk.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "driver.h"
#include "memory.h"
#include "temp_folder.h"

using memory::machine;
using memory::TakeMessage;

/// MAP01 up to that number.
std::vector<std::string> NumberedMaps(int count);
/// A WAD of maps, each with its ten lumps of data.
std::string MapWad(std::string_view tag, const std::vector<std::string>& maps);

class Session : public testing::Test {
  protected:
    Session();
    ~Session() override;

    /// Adds a definition file for an engine of that name, with `switches` numbered from 1.
    void DefineEngine(const std::string& name, int switches = 3);
    /// The path of a file in the folder, as it is written in a settings file.
    std::string Stored(std::string_view name) const;
    /// Writes a settings file of the right type with the given lines after the type.
    void WriteSettings(std::string_view lines);
    std::string SettingsBytes() const { return folder.Read("zorvane.cfg"); }

    /// Starts the program; returns false if it ended by itself.
    bool Start();
    /// Ends it by the button Exit; anything that ends the process does as well.
    void Exit();
    /// Runs steps that should end the process; returns whether they did.
    static bool Ends(const std::function<void()>& steps);

    TempFolder folder;
};
