#pragma once

#include "GUI/Popups/RoutingPicture.h"
#include "GUI/Widgets/Button.h"
#include "GUI/Widgets/Popup.h"

#include <memory>
#include <optional>
#include <vector>

namespace Zn::GUI
{
/** How to set the plug-in up in a host, by what it is to be used for. Thread: message. */
class RoutingPopup : public Popup
{
public:
    explicit RoutingPopup (EditorContext& contextToUse);
    ~RoutingPopup() override;

    bool dimsPage() const override { return true; }
    void paint (juce::Graphics& g) override;

    void choose (int newIndex);
    int getChosen() const noexcept { return chosen; }

private:
    class Row;

    const RoutingCase& current() const;
    bool isSoAlready() const;
    void acceptOffer();

    AssetScheme::Element<> list;
    std::vector<std::unique_ptr<Row>> rows;
    Button closeButton;
    RoutingPicture picture { context.canvas };
    RoutingSteps steps { context.canvas };
    std::optional<Button> offer;
    int chosen = 1;
};
} // namespace Zn::GUI
