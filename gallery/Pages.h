#pragma once

#include "gallery/PageBuilder.h"

#include <span>

namespace orvanta::gallery {

// A page shows one control in all its states. Each has a file in pages/ and a row in Pages.cpp.
struct Page {
    const char16_t* sName; // of the control
    void (*build)(PageBuilder& page);
};

std::span<const Page> Pages();

void BuildLabelPage(PageBuilder& page);
void BuildLabelNoFlickPage(PageBuilder& page);
void BuildButtonPage(PageBuilder& page);
void BuildCheckPage(PageBuilder& page);
void BuildFramePage(PageBuilder& page);
void BuildImagePage(PageBuilder& page);
void BuildImageBagPage(PageBuilder& page);

} // namespace orvanta::gallery
