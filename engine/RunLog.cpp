#include "engine/RunLog.h"

#include "base/Text.h"

namespace orvanta {

namespace {

const TaggedValue& DescriptionKey() {
    static const TaggedValue vKey(u"descr");
    return vKey;
}

} // namespace

void RunLog::Add(std::u16string_view sSource, std::u16string_view sLine, std::u16string_view sDescription) {
    m_sRow.assign(sSource).append(u"\t");
    if (m_columns == Columns::SourceLineDescription) m_sRow.append(sLine).append(u"\t");
    AddText(m_sRow.append(sDescription));
}

void RunLog::AddText(std::u16string_view sRowText) {
    Step([&] { m_fxgrid.AddRow(sRowText, true); });
}

void RunLog::ForeColor(std::int32_t lColor) {
    Step([&] { m_fxgrid.CellForeColor(m_fxgrid.Row(), DescriptionKey(), lColor); });
}

void RunLog::BackColor(std::int32_t lColor) {
    Step([&] { m_fxgrid.CellBackColor(m_fxgrid.Row(), DescriptionKey(), lColor); });
}

void RunLog::Source(std::u16string_view sSource, std::u16string_view sDescription) {
    Add(sSource, u"", sDescription);
}

void RunLog::SourceError(std::u16string_view sSource, std::u16string_view sDescription) {
    Source(sSource, sDescription);
    ForeColor(kRed);
}

void RunLog::Line(std::size_t nLine, std::u16string_view sDescription, std::int32_t lForeColor) {
    Add(u"", DecimalText(static_cast<long long>(nLine)), sDescription);
    ForeColor(lForeColor);
}

void RunLog::LineMarked(std::size_t nLine, std::u16string_view sDescription, std::int32_t lBackColor) {
    Add(u"", DecimalText(static_cast<long long>(nLine)), sDescription);
    BackColor(lBackColor);
}

void RunLog::Description(std::u16string_view sDescription) {
    Add(u"", u"", sDescription);
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
    AddText(u"");
}

} // namespace orvanta
