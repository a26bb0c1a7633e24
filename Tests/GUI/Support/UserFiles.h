#pragma once

#include "GUI/Framework/AssetScheme/Base.h"
#include "GUI/Framework/AssetScheme/UserColours.h"
#include "GUI/Widgets/UserSettings.h"
#include "Presets/Folders.h"

namespace Zn::Tests
{
/** Whatever editors keep for their user goes with a test, so that the next one starts as a new user. */
struct UserFiles
{
    UserFiles() = default;
    UserFiles (const UserFiles&) = delete;
    UserFiles& operator= (const UserFiles&) = delete;

    ~UserFiles()
    {
        GUI::UserSettings::defaultFile().deleteFile();
        Presets::Folders::user (GUI::AssetScheme::UserColours::fileName).deleteFile();
        GUI::AssetScheme::Base::get().resetUserColours();
    }
};
} // namespace Zn::Tests
