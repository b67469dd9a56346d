// The conversion of a form beside the bare floor of the same bytes, and how the code pass grows with the file.
#include "base/Windows1252.h"
#include "engine/CodePass.h"
#include "engine/FormPass.h"
#include "engine/LineArray.h"
#include "engine/RunLog.h"
#include "tests/support/FormGenerator.h"
#include "tests/support/RecordedLog.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace {

using namespace orvanta;

constexpr std::size_t kFormSize = 1'000'000;

// One form in memory: reading decodes it, saving encodes the result.
class OneForm final : public EngineWorld {
public:
    explicit OneForm(std::string sBytes) : m_sBytes(std::move(sBytes)) {}

    bool st_FileExist(std::u16string_view) override { return true; }
    bool st_TextFileToString(std::u16string_view, std::u16string& sText, bool) override {
        sText = m_codePage.BytesToText(m_sBytes);
        return true;
    }
    bool st_StringToTextFile(std::u16string_view, std::u16string_view sText, FileEncoding, bool) override {
        benchmark::DoNotOptimize(m_codePage.TextToBytes(sText));
        return true;
    }
    void UniMsgError(std::u16string_view) override {}
    bool Selected(int) override { return true; }

    const std::string& Bytes() const { return m_sBytes; }
    const AnsiCodePage& CodePage() const { return m_codePage; }

private:
    std::string m_sBytes;
    Windows1252 m_codePage;
};

OneForm& Form() {
    static OneForm form(testing::GenerateFormOfSize(kFormSize, 1));
    return form;
}

// What any converter of text has to do: decode, split into lines, join, encode.
void Floor(benchmark::State& state) {
    for ([[maybe_unused]] auto _ : state) {
        const LineArray aLines(Form().CodePage().BytesToText(Form().Bytes()));
        benchmark::DoNotOptimize(Form().CodePage().TextToBytes(aLines.Join()));
    }
}

void Conversion(benchmark::State& state) {
    for ([[maybe_unused]] auto _ : state) {
        testing::RecordedLog fxgrid;
        for (const char16_t* sKey : {u"src", u"line", u"descr"}) {
            fxgrid.AddColumn(sKey, -1, 0, TaggedValue(sKey), true, 2, false, false, false, 0, true);
        }
        RunLog log(Form(), fxgrid, RunLog::Columns::SourceLineDescription);
        ConvertFile(u"C:\\Work\\frmMade.frm", {}, Form(), log);
        benchmark::DoNotOptimize(fxgrid.Rows().size());
    }
}

// Lines of code with one text box per 50 lines.
void CodePassOf(benchmark::State& state) {
    constexpr std::size_t kLinesOfTextBox = 50;
    const auto nLines = static_cast<std::size_t>(state.range(0));
    std::vector<std::u16string> names;
    std::u16string sText;
    for (std::size_t n = 0; n < nLines / kLinesOfTextBox; ++n) {
        const std::string sNumber = std::to_string(n + 1);
        names.push_back(u"Text" + std::u16string(sNumber.begin(), sNumber.end()));
        sText += u"Private Sub " + names.back() + u"_KeyPress(KeyAscii As Integer)\r\n    Call " + names.back() +
                 u"_Click\r\nEnd Sub\r\nPrivate Sub " + names.back() + u"_Click()\r\nEnd Sub\r\n";
        for (std::size_t nLine = 5; nLine < kLinesOfTextBox; ++nLine)
            sText += u"    dTotal = dTotal + dPrice\r\n";
    }
    sText.resize(sText.size() - 2);
    for ([[maybe_unused]] auto _ : state) {
        LineArray aLines(sText);
        FixEventSignatures(names, aLines);
        benchmark::DoNotOptimize(aLines.Count());
    }
}

BENCHMARK(Floor)->Repetitions(15);
BENCHMARK(Conversion)->Repetitions(15);
BENCHMARK(CodePassOf)->Arg(2000)->Arg(32000)->Repetitions(15);

// Keeps the best time of each benchmark, in microseconds.
class BestTimes final : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            if (run.run_type != Run::RT_Iteration) continue;
            const double dTime = run.real_accumulated_time / static_cast<double>(run.iterations) * 1e6;
            const auto [it, bNew] = best.emplace(run.run_name.function_name + "/" + run.run_name.args, dTime);
            if (!bNew && dTime < it->second) it->second = dTime;
        }
    }

    std::map<std::string, double> best;
};

void Row(const char* szName, double dOurs, const char* szUnit, const char* szPeer, double dPeer, const char* szWanted) {
    std::printf("RATIO | %s | ours %.3f %s | peer %s %.3f %s | ratio %.2f | wanted %s\n", szName, dOurs, szUnit, szPeer,
                dPeer, szUnit, dOurs / dPeer, szWanted);
}

} // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    BestTimes times;
    benchmark::RunSpecifiedBenchmarks(&times);
    Row("conversion of a 1 MB form", times.best["Conversion/"] / 1e3, "ms", "decode, split, join, encode",
        times.best["Floor/"] / 1e3, "at most 2");
    Row("code pass, time per line at 32,000 lines", times.best["CodePassOf/32000"] / 32, "ns", "at 2,000 lines",
        times.best["CodePassOf/2000"] / 2, "at most 1.25");
    return 0;
}
