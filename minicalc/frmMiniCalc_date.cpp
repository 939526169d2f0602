#include "engine/Clock.h"
#include "engine/Text.h"
#include "minicalc/Accumulators.h"
#include "minicalc/frmMiniCalc.h"
#include "services/App.h"
#include "services/Platform.h"

namespace vellarno {

namespace {

constexpr int DayField = 0;
constexpr int MonthField = 1;
constexpr int YearField = 2;

constexpr int LastYearOfSums = 2300;
constexpr const char* YearLimitText =
    "Massimo valore consentito per il calcolo con le date è l'anno ";
constexpr const char* NoDateText =
    "La data immessa non è valida, il calcolo non può essere eseguito.";

}

const std::array<Segment, 3> frmMiniCalc::DateRules = {
    {{31, MonthField}, {12, YearField}, {LastYearOfSums, Segment::End}}};

const DateUnit& frmMiniCalc::Unit() const
{
    return DateUnits[Chosen(optTipoDati)];
}

void frmMiniCalc::cmdSommaData_Click()
{
    const auto result = StepDate(DateText(), Unit(), txtSommaDati.Text(), optSommaData[1].Value());
    if (result) {
        ShowDate(*result);
        txtSommaDati.SetFocus();
        AnnounceTotal();
    } else {
        System().MsgBox(NoDateText, forms::Critical, App::Title);
        txtData[DayField].SetFocus();
    }
}

std::string frmMiniCalc::DateText() const
{
    return txtData[DayField].Text() + '/' + txtData[MonthField].Text() + '/' +
           txtData[YearField].Text();
}

// A year above the limit has brought today's date back while it was written: that date stands.
void frmMiniCalc::ShowDate(DateValue Value)
{
    const std::string year = Format(Year(Value), "0000");
    txtData[YearField].SetText(year);
    if (txtData[YearField].Text() != year) return;
    txtData[MonthField].SetText(Format(Month(Value), "00"));
    txtData[DayField].SetText(Format(Day(Value), "00"));
}

void frmMiniCalc::ClearDate()
{
    const std::string zero(Unit().Zero);
    txtSommaDati.SetMaxLength(static_cast<int>(zero.size()));
    txtSommaDati.SetText(zero);
    ShowDate(Date());
    txtSommaDati.SetFocus();
}

void frmMiniCalc::txtData_Change(int Index)
{
    DateFields.Change(Index, [this, Index] {
        if (Index == YearField) RefuseYear();
    });
}

void frmMiniCalc::RefuseYear()
{
    System().MsgBox(YearLimitText + CStr(LastYearOfSums), forms::Information, App::Title);
    // A clock beyond the limit would bring a day that is refused in its turn, without end.
    if (Year(Date()) <= LastYearOfSums) cmdClear_Click();
}

void frmMiniCalc::txtData_GotFocus(int Index)
{
    DateFields.Select(Index);
}

// Padding fills the field, so that the focus goes on to the next one, wherever it was going.
void frmMiniCalc::txtData_LostFocus(int Index)
{
    if (Index != YearField) DateFields.Pad(Index);
}

void frmMiniCalc::txtSommaDati_GotFocus()
{
    txtSommaDati.Select(0, static_cast<int>(txtSommaDati.Text().size()));
}

}
