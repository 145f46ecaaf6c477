// SPDX-License-Identifier: MIT
// How long it takes to convert a photo's colours in strips on all cores, beside one call of Little CMS over
// the same pixels on one core. Usage: bench-colour MEGAPIXELS TARGET-PROFILE
#include "dialog/page/colour_profile.h"
#include "dialog/page/colour_transform.h"

#include <QFile>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>
#include <vector>

#include <lcms2.h>

namespace {

using namespace halvern;

constexpr int kTries = 5;
constexpr qsizetype kStrip = 1024 * 1024; // pixels, as a job's

template <class Work> double bestSeconds(Work work)
{
    double best = 1e9;
    for (int i = 0; i < kTries; ++i) {
        const auto start = std::chrono::steady_clock::now();
        work();
        best =
            std::min(best, std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
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
    cmsHTRANSFORM bare =
        cmsCreateTransform(srgbProfile().get(), TYPE_RGB_8, target.get(), plainType(strips.channels()),
                           INTENT_RELATIVE_COLORIMETRIC, cmsFLAGS_BLACKPOINTCOMPENSATION);
    const double alone =
        bestSeconds([&] { cmsDoTransform(bare, from.data(), to.data(), cmsUInt32Number(pixels)); });
    cmsDeleteTransform(bare);
    const double together = bestSeconds([&] {
        for (qsizetype first = 0; first < pixels; first += kStrip)
            strips.convertOnAllCores(from.data() + first * 3, to.data() + first * strips.channels(),
                                     std::min(kStrip, pixels - first));
    });
    const unsigned cores = std::max(std::thread::hardware_concurrency(), 1U);
    std::printf("%.0f megapixels to %d channels, %u cores: bare call on one %.3f s, strips on all %.3f s, "
                "%.2f times bare / cores\n",
                double(pixels) / 1e6, strips.channels(), cores, alone, together,
                together / (alone / double(cores)));
    return 0;
}
