#include "tests/support/FormGenerator.h"

#include <algorithm>
#include <array>
#include <random>
#include <string_view>
#include <vector>

namespace orvanta::testing {

namespace {

constexpr std::array<std::string_view, 12> kTypes = {
    "VB.Label", "VB.CommandButton", "VB.CheckBox",        "VB.ComboBox",      "VB.OptionButton", "VB.ListBox",
    "VB.Menu",  "VB.PictureBox",    "Orvanta.ctlUniGrid", "MSForms.ComboBox", "VB.FileListBox",  "VB.Timer"};

class Writer {
public:
    explicit Writer(const FormPlan& plan) : m_plan(plan), m_random(plan.nSeed) {}

    std::string Write() {
        Line("VERSION 5.00");
        Line("Begin VB.Form frmMade ");
        m_nIndent = 3;
        Property("Caption", "\"Bestell\xFC"
                            "bersicht\"");
        Property("ClientHeight", "6345");
        Property("ClientWidth", "9030");
        std::size_t nFrames = 0;
        for (std::size_t n = 0; n < m_plan.nControls; ++n) {
            if (nFrames < 3 && Chance(12)) {
                Open("VB.Frame", "Frame", n);
                ++nFrames;
                continue;
            }
            if (nFrames > 0 && Chance(6)) {
                Close();
                --nFrames;
            }
            Control(n);
        }
        for (; nFrames > 0; --nFrames)
            Close();
        m_nIndent = 0;
        Line("End");
        Line("Attribute VB_Name = \"frmMade\"");
        Line("Option Explicit");
        Code();
        return std::move(m_sOut);
    }

private:
    std::size_t Pick(std::size_t nCount) { return static_cast<std::size_t>(m_random() % nCount); }
    bool Chance(std::size_t nOneIn) { return Pick(nOneIn) == 0; }

    void Line(std::string_view s) {
        m_sOut.append(m_nIndent, ' ').append(s).append("\r\n");
        ++m_nLines;
    }
    void Property(std::string_view sName, std::string_view sValue) {
        std::string s(sName);
        s.resize(std::max<std::size_t>(s.size(), 16), ' ');
        Line(s.append("=   ").append(sValue));
    }
    void Open(std::string_view sType, std::string_view sName, std::size_t nNumber) {
        Line(std::string("Begin ").append(sType).append(" ").append(sName).append(std::to_string(nNumber)).append(" "));
        m_nIndent += 3;
        Property("Caption", std::string("\"").append(sName).append(std::to_string(nNumber)).append("\""));
        Property("Height", std::to_string(200 + Pick(900)));
        Property("Left", std::to_string(Pick(9000)));
    }
    void Close() {
        m_nIndent -= 3;
        Line("End");
    }

    void Control(std::size_t n) {
        const bool bText = m_nTexts < m_plan.nTextBoxes && Pick(m_plan.nControls - n) < m_plan.nTextBoxes - m_nTexts;
        if (bText) {
            Open("VB.TextBox", "Text", ++m_nTexts);
        } else {
            Open(kTypes[Pick(kTypes.size())], "Item", n);
        }
        if (Chance(3)) {
            Line("BeginProperty Font ");
            m_nIndent += 3;
            Property("Name", "\"MS Sans Serif\"");
            Property("Size", "8.25");
            m_nIndent -= 3;
            Line("EndProperty");
        }
        if (Chance(3)) Property("Style", std::to_string(Pick(3)).append("  'Dropdown"));
        Property("TabIndex", std::to_string(n));
        if (Chance(4)) Property("ToolTipText", "\"Hilfe f\xFCr dieses Feld\"");
        Property("Top", std::to_string(Pick(6000)));
        if (Chance(3)) Property("Value", std::to_string(Pick(3)).append("  'Checked"));
        Property("Width", std::to_string(200 + Pick(4000)));
        Close();
    }

    void Procedure(const std::string& sHead, std::size_t nStatements) {
        Line("Private Sub " + sHead);
        m_nIndent = 4;
        for (std::size_t n = 0; n < nStatements; ++n)
            Statement();
        m_nIndent = 0;
        Line("End Sub");
        Line("");
    }

    void Statement() {
        const std::string sText = "Text" + std::to_string(1 + Pick(std::max<std::size_t>(m_nTexts, 1)));
        switch (Pick(40)) {
        case 0: Line("Dim box As TextBox"); break;
        case 1: Line(sText + "_Click"); break;
        case 2: Line("Call " + sText + "_KeyPress(13) ' again"); break;
        case 3: Line("If Len(" + sText + ".Text) = 0 Then Exit Sub"); break;
        case 4:
            Line("lblState.Caption = \"Pr\xFC"
                 "fung der \xC4nderung l\xE4uft\"");
            break;
        case 5: Line("MsgBox \"Keine Verbindung\", vbExclamation, App.Title"); break;
        case 6: Line("Set rsOrders = cnMain.Execute(\"SELECT * FROM Orders\")"); break;
        default: Line("dTotal = dTotal + rsOrders!Quantity * rsOrders!Price"); break;
        }
    }

    void Code() {
        const std::size_t nFirst = m_nLines;
        for (std::size_t n = 1; n <= m_nTexts; ++n) {
            const std::string sName = "Text" + std::to_string(n);
            Procedure(sName + "_KeyPress(KeyAscii As Integer)", 3);
            if (n % 2 == 0) Procedure(sName + "_Click()", 2);
            if (n % 5 == 0) Procedure(sName + "_DblClick(Index As Integer)", 1);
        }
        while (m_nLines - nFirst < m_plan.nCodeLines)
            Procedure("Work" + std::to_string(m_nLines) + "()", 10);
    }

    FormPlan m_plan;
    std::mt19937_64 m_random;
    std::string m_sOut;
    std::size_t m_nIndent = 0;
    std::size_t m_nLines = 0;
    std::size_t m_nTexts = 0;
};

} // namespace

std::string GenerateForm(const FormPlan& plan) {
    return Writer(plan).Write();
}

std::string GenerateFormOfSize(std::size_t nBytes, std::uint64_t nSeed) {
    constexpr std::size_t kBytesOfControl = 330;
    FormPlan plan;
    plan.nSeed = nSeed;
    plan.nControls = nBytes * 7 / 10 / kBytesOfControl + 1;
    plan.nTextBoxes = plan.nControls / 10;
    plan.nCodeLines = nBytes * 3 / 10 / 40 + 1;
    return GenerateForm(plan);
}

} // namespace orvanta::testing
