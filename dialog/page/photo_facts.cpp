// SPDX-License-Identifier: MIT
#include "dialog/page/photo_facts.h"

#include "dialog/page/colour_profile.h"
#include "dialog/page/photo_problem.h"
#include "dialog/photo/photo_decoder.h"

namespace halvern {

PhotoFacts readPhotoFacts(const Photo& photo)
{
    PhotoFacts facts;
    PhotoDecoder decoder(photo.path);
    facts.details = decoder.file().details;
    PhotoFault fault = decoder.file().fault;
    if (fault == PhotoFault::none && !photo.isPdf) {
        const PictureAnswer& answer = decoder.begin({photo.page, 0, 0});
        fault = answer.fault;
        facts.colorTag = answer.picture.colorTag;
        facts.channels = channelsOf(answer.picture.format);
        // One for another kind of pixels is of no use to whoever converts them.
        const OpenProfile profile = openProfile(answer.picture.profile);
        if (profile && channelsOf(profile) == facts.channels)
            facts.colours = profileName(profile);
    }
    if (fault != PhotoFault::none)
        facts.problem = photoProblem(fault, photo.path);
    return facts;
}

} // namespace halvern
