#pragma once

#include "GUI/Framework/AssetScheme/Canvas.h"

namespace Zn::GUI
{
/** All that decides how one note is painted: two that are equal look the same. */
struct NoteLook
{
    enum class Kind
    {
        note,
        ghost // of the slot that plays while another one is shown
    };

    juce::Rectangle<float> box; // in the roll, pixels
    Kind kind = Kind::note;
    float velocity = 0.8f, chance = 1.0f; // 0..1
    bool isEnabled = true, isSelected = false, isHovered = false, isSounding = false;
    bool isFocused = false; // the keys act on it

    bool operator== (const NoteLook&) const = default;
};

/** Paints notes as the scheme wants them. Thread: message. */
class NotePainter
{
public:
    /** To be called when the scheme or the size has changed. */
    void load (const AssetScheme::Canvas& canvas);

    /** Rows of this height, in pixels, have notes with corners to match. */
    void setRowHeight (float newRowHeight);

    void paint (juce::Graphics& g, const NoteLook& look) const;

    /** All that a note covers, its glow and its edge included. */
    juce::Rectangle<int> areaOf (const NoteLook& look) const;

    /** What a velocity looks like. */
    juce::Colour colourOf (float velocity) const;

private:
    void paintNote (juce::Graphics& g, const NoteLook& look) const;
    void paintGhost (juce::Graphics& g, const NoteLook& look) const;
    void paintHatch (juce::Graphics& g, const NoteLook& look, juce::Colour colour) const;
    void paintGrip (juce::Graphics& g, juce::Rectangle<float> box) const;
    void paintEdges (juce::Graphics& g, const NoteLook& look) const;
    float cornerOf (juce::Rectangle<float> box) const;

    juce::Colour quiet, loud, edge, ghost, sounding, selected, glow, ground, focus;
    float hairline = 1.0f, edgeStroke = 1.4f, focusStroke = 2.0f, hatchPeriod = 5.6f,
          focusGap = 3.0f; // pixels
    float cornerProportion = 0.2f, corner = 3.0f;
};
} // namespace Zn::GUI
