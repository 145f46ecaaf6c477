// SPDX-License-Identifier: MIT
// How long it takes to convert a photo's colours in strips on all cores, beside one call of Little CMS over
// the same pixels on one core: with its usual precision, and with the one that jobs are made with. The
// processor's time tells more where other programs run. Usage: bench-colour MEGAPIXELS TARGET-PROFILE
#include "dialog/page/colour_profile.h"
#include "dialog/page/colour_transform.h"

#include <QFile>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <thread>
#include <vector>

#include <lcms2.h>

namespace {

using namespace halvern;

constexpr int kTries = 5;
constexpr qsizetype kStrip = 1024 * 1024; // pixels, as a job's

struct Seconds {
    double wall = 1e9;
    double processor = 1e9; ///< of all cores together
};

template <class Work> Seconds best(Work work)
{
    Seconds best;
    for (int i = 0; i < kTries; ++i) {
        const auto start = std::chrono::steady_clock::now();
        const std::clock_t used = std::clock();
        work();
        const std::chrono::duration<double> wall = std::chrono::steady_clock::now() - start;
        best.wall = std::min(best.wall, wall.count());
        best.processor = std::min(best.processor, double(std::clock() - used) / CLOCKS_PER_SEC);
    }
    return best;
}

} // namespace

int main(int argc, char** argv)
{
    QFile file(QString::fromLocal8Bit(argc == 3 ? argv[2] : ""));
    const auto pixels = qsizetype(std::atof(argc == 3 ? argv[1] : "0") * 1e6);
    if (pixels < 1 || !file.open(QIODevice::ReadOnly)) {
        std::fputs("usage: bench-colour MEGAPIXELS TARGET-PROFILE\n", stderr);
        return 2;
    }
    const ColourPlan plan{file.readAll(), ColourIntent::relative, true};
    const ColourTransform strips(StoredPicture(), plan);
    // Noise: no two pixels alike that follow each other.
    std::vector<uchar> from(size_t(pixels) * 3);
    unsigned seed = 1;
    for (uchar& number : from)
        number = uchar((seed = seed * 1664525U + 1013904223U) >> 24);
    std::vector<uchar> to(size_t(pixels) * size_t(strips.channels()));

    const OpenProfile target = openProfile(plan.target);
    const Seconds together = best([&] {
        for (qsizetype first = 0; first < pixels; first += kStrip)
            strips.convertOnAllCores(from.data() + first * 3, to.data() + first * strips.channels(),
                                     std::min(kStrip, pixels - first));
    });
    const unsigned cores = std::max(std::thread::hardware_concurrency(), 1U);
    std::printf("%.0f megapixels to %d channels, %u cores\nstrips on all: %.3f s, %.3f s of processor\n",
                double(pixels) / 1e6, strips.channels(), cores, together.wall, together.processor);
    for (const cmsUInt32Number precision : {cmsUInt32Number(0), cmsUInt32Number(cmsFLAGS_HIGHRESPRECALC)}) {
        cmsHTRANSFORM bare =
            cmsCreateTransform(srgbProfile().get(), TYPE_RGB_8, target.get(), plainType(strips.channels()),
                               INTENT_RELATIVE_COLORIMETRIC, cmsFLAGS_BLACKPOINTCOMPENSATION | precision);
        const Seconds alone =
            best([&] { cmsDoTransform(bare, from.data(), to.data(), cmsUInt32Number(pixels)); });
        cmsDeleteTransform(bare);
        std::printf("bare call on one, %-14s %.3f s, %.3f s of processor: strips take %.2f times that over "
                    "the cores, %.2f times its processor time\n",
                    precision == 0 ? "usual:" : "a job's:", alone.wall, alone.processor,
                    together.wall / (alone.wall / double(cores)), together.processor / alone.processor);
    }
    return 0;
}
