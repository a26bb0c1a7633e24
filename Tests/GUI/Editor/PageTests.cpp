#include "GUI/Framework/AssetScheme/Base.h"
#include "GUI/Support/OpenEditor.h"

#include <gtest/gtest.h>

namespace Zn::GUI
{
TEST (Page, AsksTheSchemeForNothingThatItDoesNotHave)
{
    Tests::OpenEditor editor;
    editor.page.createComponentSnapshot (editor.page.getLocalBounds());

    EXPECT_TRUE (AssetScheme::Base::get().getAbsentNames().empty())
        << *AssetScheme::Base::get().getAbsentNames().begin();
}
} // namespace Zn::GUI
