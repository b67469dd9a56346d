#include "engine/RunLog.h"

#include "base/Text.h"

namespace orvanta {

namespace {

const TaggedValue& DescriptionKey() {
    static const TaggedValue vKey(u"descr");
    return vKey;
}

} // namespace

std::u16string RunLog::RowText(std::u16string_view sSource, std::u16string_view sLine,
                               std::u16string_view sDescription) const {
    return m_columns == Columns::SourceDescription ? Concat({sSource, u"\t", sDescription})
                                                   : Concat({sSource, u"\t", sLine, u"\t", sDescription});
}

void RunLog::Add(const std::u16string& sRowText) {
    Step([&] { m_fxgrid.AddRow(sRowText, true); });
}

void RunLog::ForeColor(std::int32_t lColor) {
    Step([&] { m_fxgrid.CellForeColor(m_fxgrid.Row(), DescriptionKey(), lColor); });
}

void RunLog::BackColor(std::int32_t lColor) {
    Step([&] { m_fxgrid.CellBackColor(m_fxgrid.Row(), DescriptionKey(), lColor); });
}

void RunLog::Source(std::u16string_view sSource, std::u16string_view sDescription) {
    Add(RowText(sSource, u"", sDescription));
}

void RunLog::SourceError(std::u16string_view sSource, std::u16string_view sDescription) {
    Source(sSource, sDescription);
    ForeColor(kRed);
}

void RunLog::Line(std::size_t nLine, std::u16string_view sDescription, std::int32_t lForeColor) {
    Add(RowText(u"", DecimalText(static_cast<long long>(nLine)), sDescription));
    ForeColor(lForeColor);
}

void RunLog::LineMarked(std::size_t nLine, std::u16string_view sDescription, std::int32_t lBackColor) {
    Add(RowText(u"", DecimalText(static_cast<long long>(nLine)), sDescription));
    BackColor(lBackColor);
}

void RunLog::Description(std::u16string_view sDescription) {
    Add(RowText(u"", u"", sDescription));
}

void RunLog::DescriptionColored(std::u16string_view sDescription, std::int32_t lForeColor) {
    Description(sDescription);
    ForeColor(lForeColor);
}

void RunLog::DescriptionMarked(std::u16string_view sDescription, std::int32_t lBackColor) {
    Description(sDescription);
    BackColor(lBackColor);
}

void RunLog::Empty() {
    Add(std::u16string());
}

} // namespace orvanta
