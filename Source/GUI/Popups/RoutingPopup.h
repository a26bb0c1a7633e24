#pragma once

#include "GUI/Popups/RoutingCases.h"
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

    /** The way that the notes take. */
    struct Picture : AssetScheme::Element<>
    {
        explicit Picture (RoutingPopup& popup);
        void schemeChanged() override;
        void paint (juce::Graphics& g) override;

        RoutingPopup& owner;
        juce::Font nameFont, detailFont;
    };

    struct Steps : AssetScheme::Element<>
    {
        explicit Steps (RoutingPopup& popup);
        void schemeChanged() override;
        void paint (juce::Graphics& g) override;
        void show (const RoutingCase& shown);

        RoutingPopup& owner;
        juce::Font numberFont;
        std::vector<juce::TextLayout> lines;
    };

    const RoutingCase& current() const;
    void acceptOffer();

    AssetScheme::Element<> list;
    std::vector<std::unique_ptr<Row>> rows;
    Button closeButton;
    Picture picture { *this };
    Steps steps { *this };
    std::optional<Button> offer;
    int chosen = 1;
};
} // namespace Zn::GUI
