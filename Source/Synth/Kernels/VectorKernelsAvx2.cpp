// Compiled with AVX2 and FMA, unlike the rest of the program: call it only where isAvailable says so.

#include "Synth/Kernels/VectorLoops.h"

namespace Zn::Audio::Kernels
{
constinit const VectorKernels avx2Kernels = vectorLoops;
} // namespace Zn::Audio::Kernels
