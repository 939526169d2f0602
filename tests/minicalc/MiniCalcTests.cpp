#include "minicalc/frmMiniCalc.h"
#include "tests/support/Scenarios.h"

namespace vellarno::test {

TEST(MiniCalc, Scenarios)
{
    PlayAll<frmMiniCalc>(__FILE__, __LINE__, R"(
T = txtCalc_[0-2],lblTime_3,txtCalc_[3-5],focus  D = txtData_[0-2],lblTime_7,txtSommaDati,lblTime_5,focus
NODATE = message 16 Vellarno: La data immessa non è valida, il calcolo non può essere eseguito.
NOYEAR = message 64 Vellarno: Massimo valore consentito per il calcolo con le date è l'anno 2300  GO = cmdSommaData

ASessionWithTimes: txtCalc_0 23 | T=23 00 00 Somma 00 00 00 txtCalc_1 | cmdClear txtCalc_0 24 | T=- 00 00 Somma 00 00 00 txtCalc_0; log=beep, beep
cmdClear txtCalc_1 59 | T=00 59 00 Somma 00 00 00 txtCalc_2 | txtCalc_1 60 | T=00 - 00 Somma 00 00 00 txtCalc_1; log=beep, beep
cmdClear txtCalc_2 60 | T=00 00 - Somma 00 00 00 txtCalc_2; log=beep, beep | 59 | T=00 00 59 Somma 00 00 00 cmdSommaOre
cmdClear 60 | T=00 00 00 Somma - 00 00 txtCalc_3; log=beep, beep | txtCalc_4 60 | T=00 00 00 Somma - 60 00 txtCalc_5
99 | T=00 00 00 Somma - 60 99 cmdSommaOre | txtCalc_4 'a.5,' | T=00 00 00 Somma - 5 99 txtCalc_4
<Backspace> | T=00 00 00 Somma - - 99 txtCalc_4; log=beep | <Return> cmdSommaOre | T=00 01 39 Somma 00 00 00 txtCalc_3
cmdClear 013000 <Space> 004500 <Return> | T=02 15 00 Somma 00 00 00 txtCalc_3
5 <Tab> - | T=02 15 00 Sottrai 5 00 00 txtCalc_4; log=sound 202 | cmdSommaOre | T=21 15 00 Sottrai 00 00 00 txtCalc_3
- | log=none | txtCalc_2 30 + | T=21 15 30 Somma 00 00 00 cmdSommaOre; log=sound 202
optFormat_1 | T=00 00 00 Somma 00 000 000 txtCalc_3; log=sound 202 | txtCalc_4 90 | T=00 00 00 Somma 00 90 000 txtCalc_4
9 12 txtCalc_0 7 | T=7 00 00 Somma 00 909 12 txtCalc_0 | cmdClear | T=00 00 00 Somma 00 000 000 txtCalc_3
txtCalc_0 235959 txtCalc_3 23999999 cmdSommaOre | T=15 55 38 Somma 00 000 000 txtCalc_3 | cmdClear 23999999 - cmdSommaOre | T=08 04 21 Sottrai 00 000 000 txtCalc_3; log=sound 202
cmdClear 00000001 cmdSommaOre | T=23 59 59 Sottrai 00 000 000 txtCalc_3 | 00000001 + cmdSommaOre | T=00 00 00 Somma 00 000 000 txtCalc_3; log=sound 202

ASessionWithDates: 5 optBase_1 | D=22 11 2026 Somma 0000 giorni txtSommaDati; log=sound 202 | 99999 txtData_0 31 | D=31 11 2026 Somma 9999 giorni txtData_1
13 | D=31 - 2026 Somma 9999 giorni txtData_1; log=beep, beep | 00 21 | D=31 00 21 Somma 9999 giorni txtData_2
GO | D=31 00 21 Somma 9999 giorni txtData_0; log=NODATE
cmdClear txtData_0 32 | D=- 11 2026 Somma 0000 giorni txtData_0; log=beep, beep | 0 <Tab> 5 <Shift+Backtab> | D=00 05 2026 Somma 0000 giorni txtData_2
7 <Tab> | D=00 05 7 Somma 0000 giorni optSommaData_0 | txtData_0 5 GO | D=05 05 2007 Somma 0000 giorni txtSommaDati
txtSommaDati <Backspace> | D=05 05 2007 Somma - giorni txtSommaDati | GO | D=05 05 2007 Somma - giorni txtData_0; log=NODATE
txtData_1 <Backspace> | D=05 - 2007 Somma - giorni txtData_1; log=beep | txtSommaDati 'x1' GO | D=05 - 2007 Somma 1 giorni txtData_0; log=NODATE
cmdClear txtData_0 31122020 1 GO | D=01 01 2021 Somma 1 giorni txtSommaDati | txtData_0 01032020 - GO | D=29 02 2020 Sottrai 1 giorni txtSommaDati; log=sound 202
txtData_0 01010100 GO | D=01 01 0100 Sottrai 1 giorni txtData_0; log=NODATE | txtData_0 31042021 0 GO | D=31 04 2021 Sottrai 0 giorni txtData_0; log=NODATE
optTipoDati_1 9999 | D=22 11 2026 Sottrai 999 settimane txtSommaDati; log=sound 202 | txtData_0 15062021 2 + GO | D=29 06 2021 Somma 2 settimane txtSommaDati
optTipoDati_3 999 | D=22 11 2026 Somma 99 trimestri txtSommaDati | txtData_0 30112019 01 GO | D=29 02 2020 Somma 01 trimestri txtSommaDati
optTipoDati_2 9999 | D=22 11 2026 Somma 999 mesi txtSommaDati | txtData_0 31012020 1 GO | D=29 02 2020 Somma 1 mesi txtSommaDati
GO | D=29 03 2020 Somma 1 mesi txtSommaDati | txtData_2 2300 999 GO | D=22 11 2026 Somma 000 mesi txtSommaDati; log=beep, beep, NOYEAR
9 txtData_2 2301 | D=22 11 2026 Somma 000 mesi txtSommaDati; log=beep, beep, NOYEAR
- optBase_0 | T=00 00 00 Somma 00 00 00 txtCalc_3 | optBase_1 | D=22 11 2026 Sottrai 000 mesi txtSommaDati

AClockBeyondTheLimitIsRefusedOnce: clock:2301-03-05T00:00:00 optBase_1 | D=00 00 - Somma 0000 giorni txtSommaDati; log=sound 202, beep, beep, NOYEAR
clock:2026-11-22T14:05:09 cmdClear | D=22 11 2026 Somma 0000 giorni txtSommaDati

TITLE = lblTitoloHelp  HELP = lblHelpTxt  SIDES = picBase_\d.visible  WHOLE = lblHelpTxt.whole=1
HelpAndLegendBelongToTheChoiceOnScreen: optFormat_1 | TITLE=~MINUTI E SECONDI; HELP=~superiore a 60; WHOLE; lblTime_1=hh : mmm : sss | optFormat_0 | HELP=~e secondi che; WHOLE; lblTime_1=hh  :  mm  :  ss
optBase_1 | TITLE=~TRIMESTRI; HELP=~i giorni; WHOLE; SIDES=01 | optTipoDati_1 | TITLE=~TRIMESTRI; HELP=~le settimane; WHOLE | optTipoDati_2 | HELP=~i mesi; WHOLE
optTipoDati_3 | HELP=~i trimestri; WHOLE | optBase_0 | TITLE=~MINUTI E SECONDI; HELP=~e secondi che; WHOLE; SIDES=10 | optBase_1 | HELP=~i trimestri; WHOLE

AnotherChoiceWhileTheSoundServesEventsWins: soon:optBase_0 optBase_1 | TITLE=~MINUTI E SECONDI; HELP=~orario; SIDES=10 | soon:optFormat_0 optFormat_1 | HELP=~secondi che; lblTime_1=hh  :  mm  :  ss
soon:optSomma_0 optSomma_1 | lblTime_3=Somma; HELP=~orario | soon:optBase_1 optFormat_1 | HELP=~giorni; SIDES=01; lblTime_1=hh : mmm : sss
soon:optSommaData_0 optSommaData_1 | lblTime_7=Somma | soon:optTipoDati_3 optTipoDati_2 | HELP=~trimestri; lblTime_5=trimestri
soon:optBase_0 optTipoDati_0 | HELP=~orario; SIDES=10; lblTime_5=giorni

N = <Tab> | focus
TabOrder: | focus=txtCalc_3 | N=txtCalc_4 | N=txtCalc_5 | N=cmdSommaOre | N=optSomma_0 | N=txtCalc_0 | N=txtCalc_1 | N=txtCalc_2 | N=optBase_0
| focus=optBase_0 | N=cmdClear | N=cmdChiudi | N=optFormat_0 | N=txtCalc_3 | focus:optBase_0 <Down> | focus=txtSommaDati | N=cmdSommaData
| focus=cmdSommaData | N=txtData_0 | N=txtData_1 | N=txtData_2 | N=optSommaData_0 | N=optBase_1 | N=cmdClear | N=cmdChiudi | N=optTipoDati_0 | N=txtSommaDati

Closing: <Esc> | windows=none

ClosingWhileTheSoundServesEvents: soon:close:frmMiniCalc optBase_1 | windows=none; log=sound 202
)");
}

}
