#pragma once

#include "plumbing/TipBridge.h"

#include <memory>
#include <string>
#include <vector>

namespace orvanta::testing {

// Tips that nobody sees, for its lifetime.
class FakeTipScope {
public:
    FakeTipScope() {
        SetTipPopupMaker([calls = m_calls] { return std::make_unique<Popup>(calls); });
        TipsOn(true);
    }
    FakeTipScope(const FakeTipScope&) = delete;
    FakeTipScope& operator=(const FakeTipScope&) = delete;
    ~FakeTipScope() { SetTipPopupMaker({}); }

    // All texts that were shown, in order.
    const std::vector<std::u16string>& Shown() const { return m_calls->shown; }
    std::int32_t LastMaxWidth() const { return m_calls->lMaxWidth; }

private:
    struct Calls {
        std::vector<std::u16string> shown;
        std::int32_t lMaxWidth = 0;
    };
    class Popup final : public TipPopup {
    public:
        explicit Popup(std::shared_ptr<Calls> calls) : m_calls(std::move(calls)) {}
        void SetTip(std::u16string_view sTip, std::int32_t lMaxWidth, std::optional<std::u16string_view>, std::int32_t,
                    std::int32_t) override {
            m_calls->shown.emplace_back(sTip);
            m_calls->lMaxWidth = lMaxWidth;
        }
        void UpdateTip(std::u16string_view, std::int32_t, std::optional<std::u16string_view>, std::int32_t,
                       std::int32_t) override {}
        std::u16string GetTip() const override {
            return m_calls->shown.empty() ? std::u16string() : m_calls->shown.back();
        }
        std::u16string Tag() const override { return {}; }
        bool IsVisible() const override { return false; }
        void BackColor(OleColor) override {}
        void ForeColor(OleColor) override {}
        void SetFont(IFont*) override {}
        void Style(std::int32_t) override {}

    private:
        std::shared_ptr<Calls> m_calls;
    };

    std::shared_ptr<Calls> m_calls = std::make_shared<Calls>();
};

} // namespace orvanta::testing
