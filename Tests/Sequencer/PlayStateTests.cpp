#include "Sequencer/PlayState.h"

#include <gmock/gmock.h>

#include <vector>

namespace Zn::Sequencer
{
namespace
{
std::vector<Cell> cellsOf (const CellSet& set)
{
    std::vector<Cell> result;
    set.forEach ([&result] (Cell cell) { result.push_back (cell); });
    return result;
}
} // namespace

TEST (PlayState, NamesCellsChannelByChannelRowsUpwards)
{
    PlayState state;

    for (auto cell : { Cell { 15, 127 }, Cell { 1, 0 }, Cell { 0, 64 }, Cell { 0, 63 }, Cell { 0, 0 } })
        state.claim (cell);

    state.claim ({ 9, 9 });
    state.end ({ 9, 9 });
    state.end ({ 9, 9 }); // a cell that is off stays off

    EXPECT_THAT (cellsOf (state.getSounding()),
                 testing::ElementsAre (Cell { 0, 0 },
                                       Cell { 0, 63 },
                                       Cell { 0, 64 },
                                       Cell { 1, 0 },
                                       Cell { 15, 127 }));
}
} // namespace Zn::Sequencer
