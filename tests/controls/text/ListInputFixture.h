#pragma once

#include "tests/controls/text/ListFixture.h"

#include <cstdint>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

namespace orvanta::testing {

class ListInputFixture : public ListFixture {
protected:
    // Notes every event of a list but moves of the mouse, which the system makes some of by itself.
    void Watch(ListBoxCore& list) {
        const auto plain = [this](const char* sName) { return [this, sName] { log.emplace_back(sName); }; };
        const auto key = [this](const char* sName) {
            return [this, sName](std::int16_t& Key, std::int16_t& Shift) { Note(sName, {Key, Shift}); };
        };
        const auto mouse = [this](const char* sName) {
            return [this, sName](std::int16_t& Button, std::int16_t& Shift, float& X, float& Y) {
                Note(sName, {Button, Shift, static_cast<int>(X), static_cast<int>(Y)});
            };
        };
        list.Click.Add(plain("Click"));
        list.DblClick.Add(plain("DblClick"));
        list.KeyDown.Add(key("KeyDown"));
        list.KeyPress.Add(key("KeyPress"));
        list.KeyUp.Add(key("KeyUp"));
        list.MouseDown.Add(mouse("MouseDown"));
        list.MouseUp.Add(mouse("MouseUp"));
        list.MouseWheel.Add([this](std::int16_t& Button, std::int16_t& Shift, float& X, float& Y, bool& bDown) {
            Note("MouseWheel", {Button, Shift, static_cast<int>(X), static_cast<int>(Y), bDown ? 1 : 0});
        });
    }
    void Note(std::string s, std::initializer_list<int> numbers) {
        for (const int n : numbers)
            s += " " + std::to_string(n);
        log.push_back(std::move(s));
    }
    std::vector<std::string> Taken() { return std::exchange(log, {}); }
    std::vector<std::string> log;
};

} // namespace orvanta::testing
