// Any bytes as a project file: its members and the mention of the library are those of the plain engine, and the
// intake is silent.
#include "engine/ProjectIntake.h"
#include "tests/reference/PlainEngine.h"
#include "tests/support/CachedFileRule.h"
#include "tests/support/FakeWorld.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>

using namespace orvanta;

namespace {

const std::u16string kPath = u"C:\\Work\\App\\App.vbp";

void Require(bool bHolds, const char* sWhat) {
    if (bHolds) return;
    std::fprintf(stderr, "%s\n", sWhat);
    std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string sBytes(data, data + size);
    testing::FakeWorld world;
    world.Put(kPath, sBytes);
    Collection<std::u16string> members;
    bool bLibraryReferenced = true;
    ReadProject(world, kPath, members, bLibraryReferenced);

    const std::optional<std::u16string> sText = testing::TextOfFileBytes(sBytes, Windows1252());
    const reference::PlainProject plain =
        sText ? reference::PlainReadProject(kPath, *sText) : reference::PlainProject();
    Require(bLibraryReferenced == plain.libraryReferenced, "the library is mentioned or it is not");
    Require(members.Count() == plain.members.size(), "the number of members");
    for (std::size_t n = 1; n <= members.Count(); ++n)
        Require(members.Item(n) == plain.members[n - 1], "a member's path");
    for (std::size_t n = 1; n <= members.Count(); ++n)
        Require(members.Item(n).find(u"\r\n") == std::u16string::npos, "a member is part of one line");
    Require(world.boxes.empty() && world.writes.empty(), "an intake is silent");
    return 0;
}
