#include "Synth/Kernels/VectorLoops.h"

namespace Zn::Audio::Kernels
{
constinit const VectorKernels baselineKernels = vectorLoops;
} // namespace Zn::Audio::Kernels
