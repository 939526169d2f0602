#include "tests/mainwindow/MainWindow.h"

#include "engine/Holidays.h"

#include <chrono>

namespace vellarno::test {
namespace {

class Calendar : public MainWindow
{
protected:
    void SetUp() override { Choose(Dates); }

    void OpenAt(const std::string& MonthAndYear, int Field = 0)
    {
        txtData[Field * 3 + 1].SetText(MonthAndYear.substr(0, 2));
        txtData[Field * 3 + 2].SetText(MonthAndYear.substr(2));
        PressButton(cmdNowData[Field]);
    }

    /// By the keyboard, also where the panel lies over the button.
    void PressButton(forms::CommandButton& Button)
    {
        Button.SetFocus();
        Press(form, Qt::Key_Space);
    }

    std::string Shown() const { return txtCalMeseAnno.Text(); }
    bool IsOpen() const { return picCalendario.Visible() && shpShadow.Visible(); }

    Array<forms::PictureBox> PicData{form, "PicData"};
    Array<forms::Label> GIORNO{form, "GIORNO"};
    forms::TextBox& txtCalMeseAnno = form.Get<forms::TextBox>("txtCalMeseAnno");
    forms::ScrollBar& hscDataScroll = form.Get<forms::ScrollBar>("hscDataScroll");
    forms::Image& shpOggi = form.Get<forms::Image>("shpOggi");
};

/// Every cell of every month, against the civil calendar of the standard library.
TEST_F(Calendar, EveryMonthFromTheYear1000To2100)
{
    using namespace std::chrono;
    // No event but the scroll bar's own is needed to turn the page.
    const year_month_day today{sys_days(1899y / 12 / 30) + days(46348)}; // 22/11/2026
    OpenAt("011000");
    int months = 0;
    for (int y = 1000; y <= 2100; ++y) {
        const sys_days easterMonday = sys_days(1899y / 12 / 30) + days(EasterDate(y) + 1);
        for (unsigned m = 1; m <= 12; ++m, ++months) {
            const sys_days first = year(y) / month(m) / 1;
            sys_days day = first - (weekday(first) - Monday);
            bool marked = false;
            for (int cell = 1; cell <= 42; ++cell, day += days(1)) {
                const year_month_day date(day);
                const forms::Label& label = GIORNO[cell];
                const bool inside = date.month() == month(m);
                ASSERT_EQ(label.Caption(), std::to_string(unsigned(date.day()))) << y << ' ' << m;
                ASSERT_EQ(label.Enabled(), inside) << y << ' ' << m << ' ' << cell;
                if (!inside) continue;
                const bool listed = std::ranges::any_of(FixedHolidays, [&](const auto& holiday) {
                    return month(unsigned(holiday.Month)) / holiday.Day ==
                           month_day(date.month(), date.day());
                });
                const bool red = weekday(day) == Sunday || listed || day == easterMonday;
                ASSERT_EQ(label.ForeColor(), red ? forms::PureRed : forms::ButtonText)
                    << y << ' ' << m;
                ASSERT_EQ(label.FontBold(), red) << y << ' ' << m << ' ' << cell;
                if (date != today) continue;
                marked = true;
                EXPECT_EQ(shpOggi.Left(), label.Left() - 1);
                EXPECT_EQ(shpOggi.Top(), label.Top());
            }
            ASSERT_EQ(shpOggi.Visible(), marked) << y << ' ' << m;
            hscDataScroll.SetValue(hscDataScroll.Value() + 1);
        }
    }
    EXPECT_EQ(months, 13212);
    EXPECT_EQ(Shown(), " GEN 2100"); // December of the last year steps into its January
}

TEST_F(Calendar, OpensUnderItsEntryOnTheMonthThatStandsThere)
{
    struct Case
    {
        const char *Month, *Year, *Shown;
    };
    for (const int field : {0, 1})
        for (const Case& c : {Case{"03", "2021", " MAR 2021"}, Case{"2", "1000", " FEB 1000"},
                              Case{"03", "999", " NOV 2026"}, Case{"", "2021", " NOV 2026"}}) {
            txtData[field * 3 + 1].SetText(c.Month);
            txtData[field * 3 + 2].SetText(c.Year);
            PressButton(cmdNowData[field]);
            EXPECT_EQ(Shown(), c.Shown) << c.Month << '/' << c.Year;
            EXPECT_TRUE(IsOpen());
            EXPECT_EQ(picCalendario.Top(), PicData[field].Top() + PicData[field].Height() + 2);
            EXPECT_EQ(shpShadow.Left(), picCalendario.Left() + 5);
            EXPECT_EQ(form.ActiveControl(), &picOption);
        }
}

TEST_F(Calendar, StepsAtTheNewYearAndAtItsLimits)
{
    struct Case
    {
        const char *From, *Back, *Forward;
    };
    for (const Case& c :
         {Case{"012005", " DIC 2004", " FEB 2005"}, Case{"122005", " NOV 2005", " GEN 2006"},
          Case{"122100", " NOV 2100", " GEN 2100"}, Case{"011900", " DIC 1900", " FEB 1900"},
          Case{"011899", " DIC 1899", " FEB 1899"}, Case{"121899", " NOV 1899", " GEN 1900"}}) {
        OpenAt(c.From);
        hscDataScroll.SetFocus();
        Press(form, Qt::Key_Left);
        EXPECT_EQ(Shown(), c.Back) << c.From;
        OpenAt(c.From);
        hscDataScroll.SetFocus();
        Press(form, Qt::Key_Right);
        EXPECT_EQ(Shown(), c.Forward) << c.From;
    }
    OpenAt("062005");
    const int x = picCalendario.Left() + 110, y = picCalendario.Top() + 24;
    MouseDownAt(form, x, y); // the arrow goes on while it is held
    EXPECT_TRUE(WaitUntil([&] { return Shown() == " SET 2005"; }));
    MouseUpAt(form, x, y);
    hscDataScroll.SetFocus();
    for (const auto key : {Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End})
        for (int i = 0; i < 20; ++i) {
            Press(form, key);
            EXPECT_TRUE(hscDataScroll.Value() >= 1 && hscDataScroll.Value() <= 12) << key;
        }
}

TEST_F(Calendar, APickedDayIsWrittenLikeTypedText)
{
    OpenAt("022021");
    hscDataScroll.SetFocus();
    Press(form, Qt::Key_Right);
    MouseDown(GIORNO[5]);
    EXPECT_TRUE(GIORNO[5].BackOpaque());
    MouseUp(GIORNO[5]);
    EXPECT_FALSE(GIORNO[5].BackOpaque());
    EXPECT_EQ(Texts(txtData), "05 03 2021   ");
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(form.ActiveControl(), &picOption);

    OpenAt("032021", 1);
    Click(GIORNO[38]); // a day of April fills the grid: it can't be taken
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(Texts(txtData), "05 03 2021  03 2021");
    Click(GIORNO[1]);
    EXPECT_EQ(Texts(txtData), "05 03 2021 01 03 2021");
    EXPECT_EQ(desktop.Beeps, 0);
}

TEST_F(Calendar, ADayIsTypedAndTakenWithEnter)
{
    struct Case
    {
        const char* Keys;
        const char* Texts;
    };
    for (const Case& c : {Case{"8", "08 02 2021   "}, Case{"28", "28 02 2021   "},
                          Case{"29", "09 02 2021   "}, Case{"115", "05 02 2021   "}}) {
        OpenAt("022021");
        hscDataScroll.SetFocus();
        Type(form, c.Keys);
        EXPECT_TRUE(GIORNO[std::atoi(c.Texts)].BackOpaque()); // the 1st stands in the first cell
        Press(form, Qt::Key_Return);
        EXPECT_EQ(Texts(txtData), c.Texts) << c.Keys;
        EXPECT_FALSE(IsOpen());
        txtData[0].SetText("");
    }
}

TEST_F(Calendar, WhatClosesItAndWhatDoesNot)
{
    Choose(Moments);
    const Array<forms::PictureBox> icons(form, "picToolBarra");
    desktop.TempFolder = "/nowhere";
    const std::function<void()> closing[] = {[&] { Click(cmdCalcola); },
                                             [&] { txtTime[0].SetFocus(); },
                                             [&] { PressButton(cmdNowTime[0]); },
                                             [&] { txtData[4].SetText("7"); },
                                             [&] { Click(icons[0]); },
                                             [&] { Click(icons[2]); },
                                             [&] { Enter(txtData[0], "1"); },
                                             [&] { Choose(Dates); }};
    for (const auto& action : closing) {
        Click(cmdNowData[1]); // the panel hangs below all that is clicked here
        ASSERT_TRUE(IsOpen());
        action();
        EXPECT_FALSE(picCalendario.Visible() || shpShadow.Visible());
    }
    Click(cmdNowData[0]);
    Press(form, Qt::Key_Escape);
    ClickAt(form, 300, 215);
    txtData[3].SetFocus();
    Click(txtCalMeseAnno);
    EXPECT_EQ(form.ActiveControl(), &hscDataScroll);
    Wait(450); // a tick of the clock
    EXPECT_TRUE(IsOpen());
}

}
}
