#include "engine/Holidays.h"
#include "mainwindow/frmMain.h"
#include "tests/support/Scenarios.h"

#include <QDir>
#include <QImage>
#include <chrono>
#include <fstream>

namespace vellarno::test {

TEST(MainWindow, Scenarios)
{
    PlayAll<frmMain>(__FILE__, __LINE__, R"(
TIMES = optDataTime_0  MOMENTS = optDataTime_1  DATES = optDataTime_2  D = txtData_\d  T = txtTime_\d
R = lblDati_\d,lblTotali_\d,lblWeekDay_\d
ALL = D,T,lblSeparatore_\d,lblLabel_\d,lblLabel_\d\d,lblTotali_\d,cmdNowData_\d,cmdNowTime_\d,lblChekBox_\d,chkDayInt,chkWorkSat.enabled  PICTURE = imgTipoCalcolo_\d.visible
INTIMES = R,D,T=none; ALL=000000 111111 00001111 11111111 00000000000 000001111 00 11 00 0 0; PICTURE=100; imgBorder.y=115; imgBorder.height=107; focus=txtTime_0
INMOMENTS = R,D,T=none; ALL=111111 111111 11111111 11111111 11111111111 111111111 11 11 01 0 1; PICTURE=010; imgBorder.y=10; imgBorder.height=207; focus=txtData_0
INDATES = R,D=none; T=00 00 00 00 00 00; ALL=111111 000000 00000000 00000000 11111111111 111111000 11 00 11 1 1; PICTURE=001; imgBorder.y=10; imgBorder.height=107; focus=txtData_0
FILLDATES = txtData_0 0101200531122005  FILLTIMES = txtTime_0 080000090000
INCOMPLETE = message 64 Vellarno:       - Impossibile eseguire il calcolo: dati incompleti -  /Verificare di aver inserito le date e/o le ore dove richiesto/e riprovare.
START = message 64 Vellarno: Nella casella 'Data inizio' è stata  END = message 64 Vellarno: Nella casella 'Data fine' è stata
NODATE = immessa una data non valida!/Verificare i dati e riprovare.  NOYEAR = immesso un anno non valido!/Verificare i dati e riprovare.

Modes: | log=none; frmMain.windowTitle=Vellarno 2.0; frmMain.width=480; frmMain.height=312; imgBorder,picCalendario.visible=1 0; R,D,T=none
| ALL=000000 111111 00001111 11111111 00000000000 000000111 00 11 00 0 0; PICTURE=100; imgBorder.y=115; focus=txtTime_0
080000090000 TIMES | T=08 00 00 09 00 00; log=none; lblTotali_5.enabled=0
MOMENTS forget: DATES | INDATES; log=sound 202 | MOMENTS | INMOMENTS; log=sound 202 | TIMES | INTIMES; log=sound 202
DATES | INDATES; log=sound 202 | TIMES | INTIMES; log=sound 202 | MOMENTS | INMOMENTS; log=sound 202

AnotherModeChosenWhileTheSoundServesEventsWins: DATES forget: soon:MOMENTS TIMES | INMOMENTS | soon:DATES TIMES | INDATES | soon:TIMES MOMENTS | INTIMES
soon:MOMENTS DATES | INMOMENTS | soon:TIMES DATES | INTIMES | soon:DATES MOMENTS | INDATES

SIX = beep, beep, beep, beep, beep, beep
ASwitchOverAFilledFormBeepsForEachDateBoxAndTheFirstTimeBox: MOMENTS FILLDATES FILLTIMES cmdCalcola forget: DATES | INDATES; log=SIX, beep, sound 202
FILLDATES cmdCalcola forget: MOMENTS | INMOMENTS; log=SIX, sound 202 | FILLDATES FILLTIMES cmdCalcola forget: TIMES | INTIMES; log=SIX, beep, sound 202
FILLTIMES cmdCalcola forget: DATES | INDATES; log=beep, sound 202 | FILLDATES cmdCalcola forget: TIMES | INTIMES; log=SIX, sound 202

WholeDaysAndSaturdaysSurviveTheModes: DATES chkDayInt chkWorkSat | T=00 00 00 24 00 00; lblTotali_3,lblLabel_18.ForeColor=255 255
TIMES | T=none; chkDayInt,chkWorkSat.checked=1 1 | DATES | T=00 00 00 24 00 00; lblTotali_3.ForeColor=255
0503200505032005 cmdCalcola | R=00 00 01 - - - 01 00 00 01 00 00 - - - Sabato Sabato
MOMENTS forget: 0503200505032005 txtTime_0 080000080000 cmdCalcola | lblTotali_0=00

Times: clock:2026-12-31T23:59:59 081530104540 | focus=txtTime_5 | <Return> | R=none | <Return> | R=- - - 02 30 10 - - - - - - 02 150 9.010 - -
txtTime_0 230000010000 <Return> <Return> | R=- - - 02 00 00 - - - - - - 02 120 7.200 - -
txtTime_0 100000100000 <Return> <Return> | R=- - - 00 00 00 - - - - - - 00 00 00 - -
txtTime_0 000001000000 <Return> <Return> | R=- - - 23 59 59 - - - - - - 23 1.439 86.399 - -
cmdNowTime_1 | T=00 00 01 23 59 59; R=none | cmdNowTime_0 | T=23 59 59 23 59 59 | txtTime_2:= cmdCalcola | R=none; log=beep, INCOMPLETE

Dates: DATES 0101200531122005 cmdCalcola | R=00 11 30 - - - 364 52 303 52 52 09 - - - Sabato Sabato
txtData_0 3112200503012005 cmdCalcola | R=00 11 28 - - - 362 51 303 51 51 08 - - - Sabato Lunedì
txtData_0 0301200531122005 cmdCalcola | R=00 11 28 - - - 362 51 303 51 51 08 - - - Lunedì Sabato
txtData_0 0101100031122100 cmdCalcola | R=1.100 11 30 - - - 402.131 57.447 334.157 57.447 57.447 10.527 - - - Mercoledì Venerdì
txtData_0 3112200501012005 chkDayInt | R=01 00 00 - - - 365 52 304 53 52 09 - - - Sabato Sabato
chkWorkSat | R=01 00 00 - - - 365 52 252 53 52 08 - - - Sabato Sabato; lblTotali_3,lblLabel_18.ForeColor=255 255
lblChekBox_1 | lblTotali_[0-5]=365 52 304 53 52 09; lblTotali_3,lblLabel_18.ForeColor=0 0; chkWorkSat.checked=0; focus=chkWorkSat
lblChekBox_0 | lblTotali_0=364; chkDayInt.checked=0 | txtData_5:= | R=none; log=beep | chkDayInt | R=none | chkWorkSat | R=none | cmdCalcola | R=none; log=INCOMPLETE
txtData_0 3104200931062009 cmdCalcola | D=31 04 2009 31 06 2009; R=none; log=START NODATE | txtData_0 30 cmdCalcola | D=30 04 2009 31 06 2009; R=none; log=END NODATE
txtData_0 2902 txtData_3 0101 cmdCalcola | log=START NODATE | txtData_2 2008 txtData_5 0999 cmdCalcola | R=none; log=END NOYEAR
txtData_0 0101099931062009 cmdCalcola | R=none; log=START NOYEAR | txtData_0 2902200801011000 cmdCalcola | lblDati_0=1.008

Moments: MOMENTS txtData_0 1003200512032005 txtTime_0 060000180000 cmdCalcola | R=00 00 02 12 00 00 02 00 02 00 00 00 60 3.600 216.000 Giovedì Sabato
txtTime_0 180000060000 cmdCalcola | R=00 00 01 12 00 00 01 00 00 00 00 00 36 2.160 129.600 Giovedì Sabato
txtData_0 1203200510032005 txtTime_0 060000200000 cmdCalcola | R=00 00 01 10 00 00 01 00 00 00 00 00 34 2.040 122.400 Sabato Giovedì
txtData_0 10 txtTime_0 180000060000 cmdCalcola | R=00 00 00 12 00 00 00 00 00 00 00 00 12 720 43.200 Giovedì Giovedì
txtData_3 12 txtTime_0 060000120000 cmdCalcola | R=00 00 02 06 00 00 02 00 03 01 00 00 54 3.240 194.400 Giovedì Sabato
txtData_0 1003200410032005 cmdCalcola | lblDati_\d=01 00 00 06 00 00
txtData_0 0505100005052100 txtTime_0 000000000000 cmdCalcola | lblDati_\d=1.100 00 00 00 00 00; lblTotali_8=34.712.668.800

TypedDates: DATES forget: 32 00 | D=none; focus=txtData_0; log=beep, beep, beep, beep | 0 | txtData_0=0; focus=txtData_0 | <Backspace> | D=none; log=beep
'a+' '1-' | txtData_0=1; focus=txtData_0 | 2 | focus=txtData_1 | 13 00 | txtData_1=none; focus=txtData_1; log=beep, beep, beep, beep
12 | focus=txtData_2 | 2101 | focus=txtData_2; log=beep, beep | 0000 | focus=txtData_3 | txtData_2 2100 | focus=txtData_3
3112 | focus=txtData_5 | 2100 | focus=txtData_5; D=12 12 2100 31 12 2100 | txtData_5:=2100 | D=12 12 2100 31 12 2100

TypedTimes: 24 | T=none; focus=txtTime_0; log=beep, beep | 00 | focus=txtTime_1 | 60 | T=00 - - - - -; focus=txtTime_1; log=beep, beep
5 <Backspace> | log=beep | 23 59 | focus=txtTime_3 | 24 | focus=txtTime_3; log=beep, beep
txtTime_5 123 | txtTime_5=none; focus=txtTime_5; log=beep, beep | 0059 | txtTime_5=0059; focus=txtTime_5
txtTime_0:=11 txtTime_1 <Alt+K> <Alt+5> <Meta+K> <Meta+5> <Ctrl+K> <Ctrl+5> <Ctrl+V> <Alt+Backspace> <Ctrl+Backspace> <Meta+Backspace> | T=11 23 59 - - 0059

ArrivalAndDepartureFillALoneDigit: 7 <Tab> | txtTime_0=07; focus=txtTime_1 | 8 <Shift+Backtab> | txtTime_1=08; focus=txtTime_2 | txtTime_5 9 click:txtTime_0 | txtTime_5=09; focus=txtTime_0
DATES forget: 5 <Tab> | txtData_0=05; focus=txtData_1 | 3 <Shift+Backtab> | txtData_1=03; focus=txtData_2 | 0 cmdCalcola | txtData_2=00; log=INCOMPLETE
TIMES DATES forget: 5 click:txtData_2 | txtData_0=5; focus=txtData_2
txtData_0:=0 click:txtData_1 | txtData_0=none; log=beep, beep | 4 cmdCalcola | txtData_1=04; focus=txtData_2; log=INCOMPLETE

TextThatComesPastTheKeys: DATES forget: paste:-1 paste:1, paste:45 paste:¹² | txtData_0=none; log=SIX, beep, beep | paste:7 | txtData_0=7
txtData_0:= forget: drop:-1 drop:1, drop:45 drop:¹² | txtData_0=none; log=SIX, beep, beep | drop:7 | txtData_0=7 | txtData_0:= forget: commit:a1b | txtData_0=1

EveryChangeClearsTheResults: DATES FILLDATES cmdCalcola txtData_0 2 | R=none | 1 cmdCalcola txtData_5:=2006 | R=none | cmdCalcola focus:txtData_3 <Backspace> | R=none; log=beep
31 cmdCalcola txtTime_3:=24 | R=none; txtTime_3=24 | cmdCalcola txtData_0 <Tab> txtData_0:=21 | lblWeekDay_0=Venerdì

MONTH = txtCalMeseAnno  OPEN = picCalendario,shpShadow.visible=1 1  CLOSED = picCalendario,shpShadow.visible=0 0  SHOW = focus:cmdNowData_0 <Space>
Calendar: DATES txtData_1:=03 txtData_2:=2021 cmdNowData_0 | MONTH=MAR 2021; OPEN; focus=picOption; picCalendario,shpShadow.y=51 56; picCalendario,shpShadow.x=16 21
txtData_1:=2 txtData_2:=1000 SHOW | MONTH=FEB 1000 | txtData_2:=999 SHOW | MONTH=NOV 2026 | txtData_1:= txtData_2:=2021 SHOW | MONTH=NOV 2026; log=beep
txtData_4:=03 txtData_5:=2021 cmdNowData_1 | MONTH=MAR 2021; OPEN; focus=picOption; picCalendario,shpShadow.y=101 106
txtData_5:=999 cmdNowData_1 | MONTH=NOV 2026 | txtData_4:= cmdNowData_1 | MONTH=NOV 2026; log=beep
txtData_1:=01 txtData_2:=2005 SHOW focus:hscDataScroll <Left> | MONTH=DIC 2004 | <Right> | MONTH=GEN 2005 | <Right> | MONTH=FEB 2005
txtData_1:=12 txtData_2:=2100 SHOW focus:hscDataScroll <Left> | MONTH=NOV 2100 | <Right> <Right> | MONTH=GEN 2100
txtData_1:=01 txtData_2:=1900 SHOW focus:hscDataScroll <Left> | MONTH=DIC 1900 | <Right> <Left> <Home> | MONTH=DIC 1900
txtData_1:=01 txtData_2:=1899 SHOW focus:hscDataScroll <Left> | MONTH=DIC 1899 | <Right> | MONTH=GEN 1900
txtData_1:=06 txtData_2:=2005 SHOW down:126,75 until:hscDataScroll.value=9 up:126,75 | MONTH=SET 2005 | focus:hscDataScroll <End> | MONTH=GEN 2006
SHOW <Esc> click:300,215 txtData_3 click:MONTH clock:2026-11-22T14:05:10 until:picBarra_6=14.05.10 | OPEN; focus=hscDataScroll

ADayIsPicked: DATES txtData_1:=02 txtData_2:=2021 SHOW focus:hscDataScroll <Right> down:GIORNO_5 | GIORNO_[4-6].opaque=010 | up:GIORNO_5 | GIORNO_[4-6].opaque=000; D=05 03 2021 - - -; CLOSED; focus=picOption
txtData_4:=03 txtData_5:=2021 cmdNowData_1 GIORNO_38 | OPEN; D=05 03 2021 - 03 2021 | GIORNO_1 | CLOSED; D=05 03 2021 01 03 2021
txtData_1:=02 SHOW focus:hscDataScroll 8 <Return> | D=08 02 2021 01 03 2021 | SHOW focus:hscDataScroll 28 | GIORNO_2[7-9].opaque=010 | <Return> | txtData_0=28
SHOW focus:hscDataScroll 29 <Return> | txtData_0=09 | SHOW focus:hscDataScroll 2 <Right> 8 <Return> | D=08 03 2021 01 03 2021 | SHOW focus:hscDataScroll 115 <Return> | txtData_0=05; CLOSED

WhatClosesTheCalendar: MOMENTS cmdNowData_1 | OPEN | cmdCalcola | CLOSED; log=INCOMPLETE | cmdNowData_1 txtTime_0 | CLOSED | cmdNowData_1 focus:cmdNowTime_0 <Space> | CLOSED
cmdNowData_1 txtData_4:=7 | CLOSED | cmdNowData_1 picToolBarra_0 | CLOSED; log=start gnome-control-center datetime | cmdNowData_1 txtData_0 1 | CLOSED
cmdNowData_1 | OPEN | DATES | CLOSED; focus=txtData_0; log=beep, beep, beep, sound 202 | cmdNowData_1 | OPEN | MOMENTS | CLOSED | cmdNowData_0 | OPEN | TIMES | CLOSED

OFF = over:476,225 | balloon=none
Balloons: MOMENTS over:lblTotali_0 | balloon=Totale giorni, Indica il numero di giorni complessivi compresi tra/la data 'Inizio' e la data 'Fine' esclusa
over:lblTotali_1 | balloon=~Totale settimane, | over:lblTotali_0 over:lblLabel_16 over:cmdCalcola | balloon=~Totale settimane, | over:458,210 | balloon=none
over:lblTotali_2 | balloon=~lavorativi, Giorni lavorativi (inclusi i sabati)/presenti | OFF | over:lblTotali_3 | balloon=~Totale sabati, | OFF
over:lblTotali_4 | balloon=~Totale domeniche, | OFF | over:lblTotali_5 | balloon=~festivi (inclusi quelli coinc | OFF | over:lblTotali_6 | balloon=~Totale ore, | OFF
over:lblTotali_7 | balloon=~Totale minuti, | OFF | over:lblTotali_8 | balloon=~Totale secondi, | OFF
DATES chkDayInt MOMENTS over:lblTotali_0 | balloon=~e la data 'Fine' inclusa | OFF | over:lblTotali_2 | balloon=~(inclusi i sabati) | OFF
chkWorkSat over:lblTotali_2 | balloon=~(esclusi i sabati, le domeniche e i festivi) | OFF | over:lblTotali_5 | balloon=~(esclusi quelli coincidenti con il sabato); lblTotali_5.accessibleDescription=~(esclusi | OFF
TIMES over:lblTotali_0 | balloon=none | over:lblTotali_6 | balloon=~Totale ore, | OFF

PANELS = picBarra_5,picBarra_6,picBarra_[0-4]
Strip: | PANELS.x=1 143 201 236 271 306 341; PANELS.width=138 54 31 31 31 31 31; picToolBarra_\d.x=401 451 426 376; picToolBarra_\d.width=21 26 21 21
until:picBarra_3=326 | PANELS=domenica  22 nov 2026 14.05.09 4° 46 5 326 39; picBarra_1.toolTip=Settimane trascorse da inizio anno
clock:2008-01-01T00:00:00 until:picBarra_3=1 | PANELS=martedì  01 gen 2008 00.00.00 1° 0 52 1 365
clock:2008-01-07T00:00:00 until:picBarra_3=7 | PANELS=lunedì  07 gen 2008 00.00.00 1° 0 51 7 359
clock:2005-12-31T00:00:00 until:picBarra_3=365 | PANELS=sabato  31 dic 2005 00.00.00 4° 52 0 365 0
clock:2008-04-01T00:00:00 until:picBarra_3=92 | PANELS=martedì  01 apr 2008 00.00.00 2° 13 39 92 274
clock:1970-01-03T00:00:00 until:picBarra_3=3 | PANELS=sabato  03 gen 1970 00.00.00 1° 0 52 3 362
clock:2150-07-02T12:00:00 until:picBarra_3=183 | PANELS=giovedì  02 lug 2150 12.00.00 3° 26 26 183 182
clock:2004-12-31T23:59:59 until:picBarra_3=366 | PANELS=venerdì  31 dic 2004 23.59.59 4° 52 0 366 0; picBarra_4.accessibleName=Giorni mancanti a fine anno: 0
clock:2005-10-31T08:00:01 until:picBarra_6=08.00.01 | picBarra_5=venerdì  31 dic 2004; picBarra_5.accessibleName=Data di oggi: venerdì  31 dic 2004; picBarra_6.accessibleName=Ora: 08.00.01

Toolbar: imgOnTop | windows=frmMain*; imgOnTop.Picture=:/pictures/pin-on.png | picToolBarra_3 | windows=frmMain* frmMiniCalc*; log=sound 201 | imgOnTop | windows=frmMain frmMiniCalc*; imgOnTop.Picture=:/pictures/pin-off.png
picToolBarra_3 | windows=frmMain frmMiniCalc*; log=sound 201 | txtTime_0 080000090000 cmdCalcola | lblDati_3=01 | close:frmMiniCalc picToolBarra_3 | windows=frmMain frmMiniCalc
picToolBarra_0 | log=start gnome-control-center datetime | only:mate-time-admin picToolBarra_0 | log=start mate-time-admin | only:none picToolBarra_0 | log=none
soon:imgOnTop soon:close:frmAbout picToolBarra_1 | windows=frmMain frmMiniCalc; log=none | soon:close:frmMain picToolBarra_1 | windows=none
)");
}

/// Every cell of every month, against the civil calendar of the standard library.
TEST(MainWindow, EveryMonthFromTheYear1000To2100)
{
    using namespace std::chrono;
    const sys_days origin = 1899y / 12 / 30, today = 2026y / 11 / 22;
    Stage<frmMain> stage;
    const forms::ControlArray<forms::Label> GIORNO(*stage.form, "GIORNO");
    const auto& shpOggi = stage.form->Get<forms::Image>("shpOggi");
    auto& bar = stage.form->Get<forms::ScrollBar>("hscDataScroll");
    stage.Do("optDataTime_2 txtData_1:=01 txtData_2:=1000 cmdNowData_0");
    for (auto month = 1000y / January; month <= 2100y / December; month += months(1)) {
        const std::string shown = stage.form->Get<forms::TextBox>("txtCalMeseAnno").Text();
        const sys_days first = month / 1, easter = origin + days(EasterDate(int(month.year())));
        sys_days day = first - (weekday(first) - Monday);
        bool marked = false;
        for (int cell = 1; cell <= 42; ++cell, day += days(1)) {
            const year_month_day date(day);
            const forms::Label& label = GIORNO[cell];
            ASSERT_EQ(label.Caption(), std::to_string(unsigned(date.day()))) << shown;
            ASSERT_EQ(label.Enabled(), date.month() == month.month()) << shown << ' ' << cell;
            if (date.month() != month.month()) continue;
            const bool red = weekday(day) == Sunday || day == easter + days(1) ||
                             std::ranges::any_of(FixedHolidays, [&](const auto& each) {
                                 return unsigned(date.month()) == unsigned(each.Month) &&
                                        unsigned(date.day()) == unsigned(each.Day);
                             });
            ASSERT_EQ(label.ForeColor(), red ? forms::PureRed : forms::ButtonText) << shown;
            ASSERT_EQ(label.FontBold(), red) << shown << ' ' << cell;
            marked |= day == today && shpOggi.pos() == label.pos() - QPoint(1, 0);
        }
        ASSERT_EQ(marked, month == 2026y / 11);
        ASSERT_EQ(shpOggi.Visible(), marked) << shown;
        bar.SetValue(bar.Value() + 1);
    }
    EXPECT_EQ(bar.Value(), 1); // December of the last year steps into its January
}

TEST(MainWindow, EveryPictureIsThereForFinerPixelsToo)
{
    const QDir pictures(QStringLiteral(":/pictures"));
    for (QString name : pictures.entryList()) {
        if (name.contains(u'@')) continue;
        const QSize own = QImage(pictures.filePath(name)).size();
        name.insert(name.lastIndexOf(u'.'), QStringLiteral("@3x"));
        EXPECT_EQ(QImage(pictures.filePath(name)).size(), own * 3) << name.toStdString();
    }
    EXPECT_FALSE(pictures.isEmpty());
}

TEST(MainWindow, TheHelpPageIsWrittenWholeOpenedAndTidiedAway)
{
    namespace fs = std::filesystem;
    Stage<frmMain> stage;
    const fs::path page = stage.desktop.TempFolder + "/HelpVellarno.htm",
                   victim = page.string() + ".txt";
    const QString opens = "picToolBarra_2 | log=open " + QString::fromStdString(page);
    for (int press = 0; press < 100; ++press) stage.Play(opens);
    EXPECT_EQ(fs::status(page).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    std::ofstream(page, std::ios::app) << std::string(5000, 'x');
    stage.Play(opens);
    EXPECT_EQ(fs::file_size(page), 7231U);
    fs::remove(page);
    std::ofstream(victim) << "precious";
    fs::create_symlink(victim, page); // what stands in its way is left alone
    stage.Play("picToolBarra_2 | log=~16 Vellarno: Impossibile visualizzare le informazioni.");
    stage.form->Close();
    EXPECT_TRUE(fs::is_symlink(page) && fs::file_size(victim) == 8);
    Stage<frmMain> another;
    another.Play("picToolBarra_2 close:frmMain | log=~open ");
    EXPECT_TRUE(fs::is_empty(another.desktop.TempFolder));
}

}
