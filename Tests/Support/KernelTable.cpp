#include "Support/KernelTable.h"

#include <algorithm>

namespace Zn::Tests
{
using Audio::Kernels::TableView;

KernelTable::KernelTable (const LiteralTable& table)
    : numFrames (static_cast<int> (table.front().size())), numChannels (static_cast<int> (table.size()))
{
    for (auto frame = -TableView::guardFramesAhead; frame < numFrames + TableView::guardFramesBehind; ++frame)
        for (const auto& channel : table)
            samples.push_back (channel[static_cast<size_t> (std::clamp (frame, 0, numFrames - 1))]);
}

TableView KernelTable::view() const
{
    return { samples.data() + TableView::guardFramesAhead * numChannels, numFrames, numChannels };
}
} // namespace Zn::Tests
