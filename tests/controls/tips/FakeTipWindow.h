#pragma once

#include "controls/tips/TipLogic.h"
#include "plumbing/TipBridge.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace orvanta::testing {

// A tip window that nobody sees, a mouse and a clock that the test moves.
class FakeTipWindow final : public TipWindow, public TipClock {
public:
    FakeTipWindow() { PersistentTip(false); }
    FakeTipWindow(const FakeTipWindow&) = delete;
    FakeTipWindow& operator=(const FakeTipWindow&) = delete;
    ~FakeTipWindow() { PersistentTip(false); }

    TipPoint Cursor() const override { return cursor; }
    bool Visible() const override { return bVisible; }
    void Hide() override {
        bVisible = false;
        ++nHides;
    }
    void Caption(std::u16string_view s) override { sCaption = s; }
    void Place(const TipRequest& request) override {
        bVisible = true;
        placed.push_back(request);
    }
    std::int64_t Now() const override { return lNow; }
    void WakeAt(std::int64_t lTime) override {
        wake = lTime;
        ++nWakes;
    }

    // Lets time pass, waking the logic whenever it asked for it.
    void Pass(TipLogic& logic, std::int64_t lMilliseconds) {
        const std::int64_t lEnd = lNow + lMilliseconds;
        while (wake && *wake <= lEnd) {
            lNow = *wake;
            wake.reset();
            logic.Elapsed();
        }
        lNow = lEnd;
    }
    // Lets time pass while the program is busy: everything that became due meanwhile comes at once at the end.
    void PassBusy(TipLogic& logic, std::int64_t lMilliseconds) {
        lNow += lMilliseconds;
        if (!wake || *wake > lNow) return;
        wake.reset();
        logic.Elapsed();
    }

    TipPoint cursor{100, 200};
    bool bVisible = false;
    int nHides = 0;
    int nWakes = 0;
    std::u16string sCaption;
    std::vector<TipRequest> placed;
    std::int64_t lNow = 1000000;
    std::optional<std::int64_t> wake;
};

} // namespace orvanta::testing
