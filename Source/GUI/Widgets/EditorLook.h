#pragma once

#include "Foundation/Events/Listener.h"
#include "GUI/Widgets/MenuLook.h"

namespace Zn::GUI
{
/** How the parts that JUCE brings look in our editor: menus, text fields, scroll bars, lists, the file browsers of
    systems without one, and the dialogue for devices. Fonts and colours are those of the scheme. Thread: message.
*/
class EditorLook : public MenuLook
{
public:
    explicit EditorLook (AssetScheme::Canvas& canvasToUse);

    juce::Typeface::Ptr getTypefaceForFont (const juce::Font& font) override;

    void
    fillTextEditorBackground (juce::Graphics& g, int width, int height, juce::TextEditor& field) override;
    void drawTextEditorOutline (juce::Graphics& g, int width, int height, juce::TextEditor& field) override;

    void drawButtonBackground (juce::Graphics& g,
                               juce::Button& button,
                               const juce::Colour& usual,
                               bool isOver,
                               bool isDown) override;
    void drawComboBox (juce::Graphics& g,
                       int width,
                       int height,
                       bool isDown,
                       int buttonX,
                       int buttonY,
                       int buttonWidth,
                       int buttonHeight,
                       juce::ComboBox& box) override;
    void drawTickBox (juce::Graphics& g,
                      juce::Component& owner,
                      float x,
                      float y,
                      float width,
                      float height,
                      bool isTicked,
                      bool isEnabled,
                      bool isOver,
                      bool isDown) override;

    void drawScrollbar (juce::Graphics& g,
                        juce::ScrollBar& bar,
                        int x,
                        int y,
                        int width,
                        int height,
                        bool isVertical,
                        int thumbStart,
                        int thumbSize,
                        bool isOver,
                        bool isDown) override;
    int getDefaultScrollbarWidth() override;

    juce::Font getLabelFont (juce::Label&) override { return font; }
    juce::Font getTextButtonFont (juce::TextButton&, int) override { return font; }
    juce::Font getComboBoxFont (juce::ComboBox&) override { return font; }
    juce::Font getAlertWindowTitleFont() override { return titleFont; }
    juce::Font getAlertWindowMessageFont() override { return font; }
    juce::Font getAlertWindowFont() override { return font; }

    /** The property of a text field that has not understood its text: its edge is red. */
    static const juce::Identifier refused;

private:
    void update();
    void paintField (juce::Graphics& g, juce::Rectangle<float> area, juce::Colour fill) const;

    AssetScheme::Canvas& canvas;
    juce::Font font, titleFont;
    SVGPainter tick { "check.svg" }, down { "down.svg" };
    Events::Listener listener;
};
} // namespace Zn::GUI
