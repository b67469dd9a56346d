// The grid without its window beside plain containers: rows of u16strings in vectors, sorted by the library. Every call
// does the whole work, the grid with its size calculation.
#include "base/Text.h"
#include "bench/support/Measure.h"
#include "grid/GridModel.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace orvanta;

constexpr std::int32_t kRows = 100000;
constexpr int kRuns = 7;

void Row(const char* what, bench::Pair pair, const char* peer, const char* wanted) {
    std::printf("RATIO | %s | ours %.2f ms | peer %s %.2f ms | ratio %.2f | wanted %s\n", what, pair.dOurs * 1e3, peer,
                pair.dPeer * 1e3, pair.dPeer / pair.dOurs, wanted);
}

class StillBar : public GridBar {
public:
    std::int16_t Max() const override { return m_iMax; }
    void Max(std::int16_t iMax) override { m_iMax = iMax; }
    std::int16_t Value() const override { return m_iValue; }
    void Value(std::int16_t iValue) override { m_iValue = std::min(iValue, m_iMax); }
    void Steps(std::int16_t, std::int16_t) override {}

private:
    std::int16_t m_iMax = 0;
    std::int16_t m_iValue = 0;
};

// A window that shows nothing. Text is six pixels a unit.
class BlindView : public GridView {
public:
    bool UserMode() const override { return true; }
    std::int32_t ScaleWidth() const override { return 860; }
    std::int32_t ScaleHeight() const override { return 640; }
    std::int32_t HScrollHeight() const override { return 16; }
    void MeasureTextLine(std::u16string_view s, std::int32_t& w, std::int32_t& h) override {
        w = static_cast<std::int32_t>(s.size()) * 6;
        h = 13;
    }
    void MeasureTextBlock(std::u16string_view s, bool, std::int32_t& w, std::int32_t& h) override {
        MeasureTextLine(s, w, h);
    }
    std::uint64_t FontStamp() const override { return 1; }
    GridBar& VScrollBar() override { return m_vertical; }
    GridBar& HScrollBar() override { return m_horizontal; }
    void ShowHScroll(bool) override {}
    void Paint(bool) override {}
    void PaintPreview() override {}
    void EdgePointer(bool) override {}
    void ShowTip() override {}
    std::int16_t KeyShiftState() const override { return 0; }

private:
    StillBar m_vertical;
    StillBar m_horizontal;
};

class PlainLocale : public GridLocale {
public:
    char16_t DecimalSeparator() const override { return u'.'; }
    void AppendSortKey(std::u16string_view s, std::string& sKey) const override { AppendFoldedSortKey(s, sKey); }
};

struct BenchGrid {
    BlindView view;
    PlainLocale locale;
    GridModel grid{view, locale};

    BenchGrid() {
        grid.InitRuntime();
        grid.AddColumn(u"Source", -1, 0, u"source", true, 0, true);
        grid.AddColumn(u"Line", -1, 1, u"line", true, 2, true, false, false, 1);
        grid.AddColumn(u"Description", -1, 0, u"description");
    }
};

using PlainRows = std::vector<std::vector<std::u16string>>;

struct Rows {
    std::vector<std::u16string> texts;

    Rows() {
        std::mt19937 random(1);
        for (std::int32_t n = 0; n < kRows; ++n) {
            texts.push_back(u"frmWindow" + DecimalText(static_cast<long long>(random() % 5000)) + u".frm\t" +
                            DecimalText(static_cast<long long>(random() % 1000000)) +
                            u"\tThe property has no counterpart and was left out");
        }
    }
};

void Fill(GridModel& grid, const Rows& rows) {
    grid.BeginUpdate();
    for (const std::u16string& s : rows.texts)
        grid.AddRow(s, false);
    grid.EndUpdate(true, false);
}

PlainRows Split(const Rows& rows) {
    PlainRows plain;
    for (const std::u16string& s : rows.texts) {
        std::vector<std::u16string> cells;
        for (const std::u16string_view sCell : orvanta::Split(s, u"\t"))
            cells.emplace_back(sCell);
        plain.push_back(std::move(cells));
    }
    return plain;
}

// The best of some runs of which each needs a fresh state that is not measured.
template<typename Prepare, typename Call>
double BestPrepared(Prepare&& prepare, Call&& call) {
    double dBest = 1e9;
    for (int n = 0; n < kRuns; ++n) {
        auto state = prepare();
        dBest = std::min(dBest, bench::BestSeconds(1, [&] { call(*state); }));
    }
    return dBest;
}

std::unique_ptr<BenchGrid> Filled(const Rows& rows) {
    auto state = std::make_unique<BenchGrid>();
    Fill(state->grid, rows);
    return state;
}

void BulkWork(const Rows& rows) {
    const auto plain = [&] { return std::make_unique<PlainRows>(Split(rows)); };
    Row("grid: fill 100,000 rows of 3 columns in an update bracket",
        {BestPrepared([] { return std::make_unique<BenchGrid>(); }, [&](BenchGrid& s) { Fill(s.grid, rows); }),
         bench::BestSeconds(kRuns, [&] { bench::Keep(Split(rows)); })},
        "vectors of u16string", "1.00");
    Row("grid: clear 100,000 rows",
        {BestPrepared([&] { return Filled(rows); }, [](BenchGrid& s) { s.grid.Clear(false); }),
         BestPrepared(plain, [](PlainRows& s) { s.clear(); })},
        "vectors of u16string", "5.00");
    Row("grid: sort 100,000 rows by text",
        {BestPrepared([&] { return Filled(rows); }, [](BenchGrid& s) { s.grid.SortByColum(u"source", true); }),
         BestPrepared(plain,
                      [](PlainRows& s) {
                          std::vector<std::pair<std::u16string, std::size_t>> keys;
                          for (std::size_t n = 0; n < s.size(); ++n)
                              keys.emplace_back(FoldCase(s[n][0]), n);
                          std::sort(keys.begin(), keys.end());
                          PlainRows sorted;
                          for (const auto& [sKey, n] : keys)
                              sorted.push_back(std::move(s[n]));
                          s = std::move(sorted);
                      })},
        "std::sort of folded keys", "1.50");
    Row("grid: sort 100,000 rows by number",
        {BestPrepared([&] { return Filled(rows); }, [](BenchGrid& s) { s.grid.SortByColum(u"line", true); }),
         BestPrepared(
             [&] {
                 std::mt19937 random(2);
                 auto numbers = std::make_unique<std::vector<std::pair<double, std::size_t>>>();
                 for (std::size_t n = 0; n < static_cast<std::size_t>(kRows); ++n)
                     numbers->emplace_back(static_cast<double>(random() % 1000000), n);
                 return numbers;
             },
             [](std::vector<std::pair<double, std::size_t>>& s) { std::sort(s.begin(), s.end()); })},
        "std::sort of pairs, rows not moved", "0.70");
    Row("grid: remove 2,000 of 100,000 rows from the front",
        {BestPrepared([&] { return Filled(rows); },
                      [](BenchGrid& s) {
                          s.grid.BeginUpdate();
                          for (int n = 0; n < 2000; ++n)
                              s.grid.RemoveRow(1, false);
                          s.grid.EndUpdate(true, false);
                      }),
         BestPrepared(plain,
                      [](PlainRows& s) {
                          for (int n = 0; n < 2000; ++n)
                              s.erase(s.begin());
                      })},
        "vector::erase", "-");
}

// Rows added one by one, each measured and made current: the time of the last thousand beside that of the first.
void LogWork(bool bMultiLine, const char* what) {
    bench::Pair best;
    for (int n = 0; n < kRuns; ++n) {
        BenchGrid state;
        state.grid.AllowMultiLineText(bMultiLine);
        const auto thousand = [&] {
            for (int i = 0; i < 1000; ++i)
                state.grid.AddRow(u"frmMain.frm\t12\tThe property has no counterpart and was left out", true);
        };
        best.dPeer = std::min(best.dPeer, bench::BestSeconds(1, thousand));
        for (int i = 0; i < 8; ++i)
            thousand();
        best.dOurs = std::min(best.dOurs, bench::BestSeconds(1, thousand));
    }
    Row(what, best, "rows 1 to 1,000", "0.77");
}

void Memory() {
    BenchGrid state;
    state.grid.BeginUpdate();
    const double dSeconds = bench::BestSeconds(1, [&] {
        for (int n = 0; n < 1000000; ++n)
            state.grid.AddRow(u"frmMain.frm\t12\tleft out", false);
        state.grid.EndUpdate(true, false);
    });
    std::size_t nBytes = 0;
    for (std::int32_t iCol = 1; iCol <= state.grid.Cols(); ++iCol)
        nBytes += state.grid.Columns().At(iCol)->Cells().Bytes();
    std::printf("a million rows of 3 columns: filled in %.0f ms, %.1f bytes a cell with its text\n", dSeconds * 1e3,
                static_cast<double>(nBytes) / 3e6);
}

} // namespace

int main() {
    const Rows rows;
    BulkWork(rows);
    LogWork(false, "grid: add and show rows 9,001 to 10,000");
    LogWork(true, "grid: add and show rows 9,001 to 10,000, many lines");
    Memory();
    return 0;
}
