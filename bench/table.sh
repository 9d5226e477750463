#!/usr/bin/env bash
# Installs what is missing, builds, runs every benchmark and prints one table in Markdown:
# processor time, of several runs the shortest, unless a row says otherwise.
set -euo pipefail
cd -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/.."
source packaging/setup.sh
install_missing build run test bench >&2
build_preset release >&2
source bench/desktop.sh
bench=build/release/bench
figures=$desktop/figures # Lines of a name and a figure; times are microseconds.

# run SCALE PROGRAM [FILTER]: the benchmarks' names get the screen's scale in front.
run() {
    QT_SCALE_FACTOR=$1 "$bench/$2" --benchmark_format=csv --benchmark_repetitions=3 \
        --benchmark_filter="${3:-.}" 2>/dev/null |
        awk -F, -v scale="$1x" '
            BEGIN {unit["ns"] = 0.001; unit["us"] = 1; unit["ms"] = 1000}
            {gsub(/"/, "")}
            $5 in unit && $1 !~ /_(mean|median|stddev|cv)$/ {
                time = $4 * unit[$5]
                if (!($1 in least) || time < least[$1]) least[$1] = time
            }
            END {for (name in least) print scale name, least[name]}'
}

start_desktop
{
    bench/start.sh
    bench/idle.sh
    "$bench/sound_notes" build/release/tonvik/ |
        awk '{print $1, /^FirstNote|Call/ ? $2 * 1000 : $2}'
    run 1 workbench_bench
    run 2 workbench_bench 'Paint|ResizeStep'
    run 4 workbench_bench Paint
    run 1 windows_bench
    run 1 lists_bench
    run 1 voicings_bench FindOne
    QT_SCALE_FACTOR=1 "$bench/voicings_bench" --benchmark_format=json --benchmark_filter=FindAll \
        2>/dev/null |
        sed -nE 's/.*"(median|worst)": ([0-9.e+]+).*/VoicingsOfAll_\1 \2/p'
    run 1 texts_bench
} >>"$figures"

# A row: what, the names of its figures, their unit, the goal.
awk -F'|' -v figures="$figures" '
    BEGIN {
        while ((getline line < figures) > 0) {
            split(line, part, " ")
            figure[part[1]] = part[2]
        }
        divisor["µs"] = 1; divisor["ms"] = 1000; divisor[""] = 1
        print "| what | figure | goal |"
        print "|---|---|---|"
    }
    {
        count = split($2, names, " ")
        text = ""
        for (i = 1; i <= count; ++i) {
            shown = "–"
            if (names[i] in figure) shown = sprintf("%.3g", figure[names[i]] / divisor[$3])
            text = text (i > 1 ? " / " : "") shown
        }
        printf "| %s | %s%s | %s |\n", $1, text, ($3 == "" ? "" : " " $3), $4
    }' <<'ROWS'
start to the first complete paint, over a bare window / one with a line of text (elapsed)|StartRatio StartLineRatio||1.3, at most 2 / 1.5
memory then, over a bare window|MemoryRatio||1.25
further memory with the window of voicings open (kB)|VoicingsMemory||8192
chord spelled and fingered|1xSpellAndFinger|µs|2
chord change to the end of the paint with its ways to play, screen scale 1 / 2 / 4|1xChordChangeToPaint 2xChordChangeToPaint 4xChordChangeToPaint|ms|2 at scale 1
scale change to the end of the paint, screen scale 1 / 2 / 4|1xScaleChangeToPaint 2xScaleChangeToPaint 4xScaleChangeToPaint|ms|1 at scale 1
step of a resize, layout and paint, screen scale 1 / 2|1xResizeStep 2xResizeStep|ms|16 at scale 2
fretboard painted anew, screen scale 1 / 2 / 4|1xPaintFretboard 2xPaintFretboard 4xPaintFretboard|ms|
keyboard painted anew, screen scale 1 / 2 / 4|1xPaintKeys 2xPaintKeys 4xPaintKeys|ms|
`chords.dat` read, 50 / 10,000 / 1,000,000 records|1xReadCatalogue/chords/50 1xReadCatalogue/chords/10000 1xReadCatalogue/chords/1000000|ms|linear
`scales.dat` read, 50 / 10,000 / 1,000,000 records|1xReadCatalogue/scales/50 1xReadCatalogue/scales/10000 1xReadCatalogue/scales/1000000|ms|linear
`tunings.dat` read, 50 / 10,000 / 1,000,000 records|1xReadCatalogue/tunings/50 1xReadCatalogue/tunings/10000 1xReadCatalogue/tunings/1000000|ms|linear
chord named among 50 / 10,000 / 1,000,000 more types|1xRecognise/50 1xRecognise/10000 1xRecognise/1000000|ms|linear
what sounds named by the built-in types / among 1,000,000 more|1xNameShape 1xNameShapeAmongMillion|µs|20 / 2000
click on the neck to the painted name of what sounds|1xClickToName|ms|1.5
a step taken back and shown, or done again|1xUndoAndRedo|ms|1
rows found for what is typed among 50 / 10,000 / 1,000,000 more types, where none fits|1xOfferTypes/50 1xOfferTypes/10000 1xOfferTypes/1000000|ms|linear
these types indexed by their notes, 50 / 10,000 / 1,000,000 more|1xIndexNames/50 1xIndexNames/10000 1xIndexNames/1000000|ms|linear
type looked for that none of these is called|1xFindByName/50 1xFindByName/10000 1xFindByName/1000000|ms|linear
start with three files of 1,000,000 records (elapsed)|StartMillion|ms|linear
further memory then, over the size of the files|MemoryMillion||3
page down among 1,000,000 chord types / scales / tunings|1xPageDown/0 1xPageDown/1 1xPageDown/2|ms|100
to the end or the beginning of these|1xEndAndHome/0 1xEndAndHome/1 1xEndAndHome/2|ms|100
a letter typed that none of these begins with|1xSearchByLetter/0 1xSearchByLetter/1 1xSearchByLetter/2|ms|100
voicings of C / C7 / C9 / C13, with fingers, ranked|1xFindOne/C 1xFindOne/C7 1xFindOne/C9 1xFindOne/C13|µs|100 each
of 50 types on 12 roots in 36 tunings: median / worst|VoicingsOfAll_median VoicingsOfAll_worst|µs|100 / 2000
chord type / scale with a name of 2,000,000 letters chosen and shown|1xEndlessChoose 1xEndlessScale|ms|100
such a type looked for / named / played|1xEndlessSearch 1xEndlessName 1xEndlessPlay|ms|100
the box with its other names opened and closed|1xEndlessBox|ms|100
every way to play a chord: window with 2,400 voicings opened / a page on|1xOpenVoicings 1xScrollVoicings|ms|50 / 16
settings opened with 36 / 10,000 tunings|1xOpenSettings/36 1xOpenSettings/10000|ms|30 / 150
help opened at the English manual|1xOpenHelp|ms|50
sheet of 50,000 bytes opened|1xOpenLongestSheet|ms|50
1,000 codes written|1xWriteThousandCodes|ms|50
pages of 100 diagrams shown after a key|1xPreviewAfterAKey|ms|16
1,000 diagrams as PDF|1xPdfOfThousandDiagrams|ms|1000
note asked for, median / longest of 1,000 / first of a session (elapsed)|Call LongestCall FirstCall|ms|0.1 / 2 / 2
from a note asked for to its first sample that is heard (samples)|SilentSamples||512
first note of a session begun, device and sound font opened (elapsed)|FirstNote|ms|200
memory from 100 notes to 10,000 (kB)|GrowthOverTenThousandNotes||1024
wake-ups a minute at rest, before / after a first note|WakeUpsBeforeANote WakeUpsAfterANote||0
ROWS
