#!/bin/bash
# Makes docs/pictures/icons.png: every picture of the family at one to four times its size, as the
# program embeds it, on white and on the bars' colour.
#
# usage: resources/contact_sheet.sh [BUILD]     (the build folder; "build" when not given)
set -euo pipefail
cd "$(dirname "$0")/.."
art=${1:-build}/resources/art
if [ ! -f "$art/tick-1.png" ]; then
  echo "contact_sheet: $art holds no artwork; build the program first" >&2
  exit 1
fi

# Label and drawing, in the order in which the tables of images.cpp hold them.
drawings=(
  "125: 0 tick" "125: 1 cross" "125: 2, 15 question" "125: 3 copy" "125: 4 paste" "125: 5 table-size"
  "125: 6 show" "125: 7 hand" "125: 8 magnifier" "125: 9 fit" "125: 10 plot-setup" "125: 11 plot-presets"
  "125: 12 title-bar" "125: 13 value-strip" "125: 14 fold" "125: 16 page-previous" "125: 17 page-next"
  "125: 18 back" "125: 19 contents" "125: 20 setup" "125: 21 presets" "125: 22 summary"
  "141: 0 book-closed" "141: 1 book-open" "141: 2 page" "141: 3 box-minus" "141: 4 box-plus"
  "107 mark-move" "119 mark-resize-column" "109 mark-enlarge" "111 mark-reduce" "127 mark-accepted"
  "126 mark-refused" "102 application"
)

rows=$(((${#drawings[@]} + 1) / 2))
row_height=72
column_width=640
height=$((rows * row_height + 16))
sheet=$art/contact-sheet.svg

# A white field and one in the bars' colour for a column's pictures.
fields() {
  echo "<rect x='$(($1 + 120))' width='250' height='$height' fill='#fff'/>"
  echo "<rect x='$(($1 + 380))' width='250' height='$height' fill='#f0faff'/>"
}

# The files of a drawing side by side from x on, centred on the row, as far as the field reaches. A
# mark shows through its mask, as it does on the screen.
pictures() {
  local name=$1 x=$2 middle=$3 limit=$(($2 + 240)) scale place clip
  for scale in 1 2 3 4; do
    # Bytes 16 to 23 of a PNG file are its width and height, most significant byte first.
    read -r width height < <(od -An -j16 -N8 -t u1 "$art/$name-$scale.png" | awk '{print $3 * 256 + $4, $7 * 256 + $8}')
    if [ $((x + width)) -gt $limit ] || [ "$height" -gt $row_height ]; then
      return
    fi
    place="x='$x' y='$((middle - height / 2))' width='$width' height='$height'"
    clip=
    if [ -f "$art/$name-mask-$scale.png" ]; then
      echo "<mask id='$name-$scale-$x'><image href='$name-mask-$scale.png' $place/></mask>"
      clip="mask='url(#$name-$scale-$x)'"
    fi
    echo "<image href='$name-$scale.png' $place $clip/>"
    x=$((x + width + 14))
  done
}

{
  echo "<svg xmlns='http://www.w3.org/2000/svg' width='$((2 * column_width))' height='$height'>"
  echo "<rect width='100%' height='100%' fill='#e6f2ff'/>"
  fields 0
  fields $column_width
  index=0
  for entry in "${drawings[@]}"; do
    column=$((index / rows))
    left=$((column * column_width))
    middle=$((index % rows * row_height + row_height / 2 + 8))
    echo "<text x='$((left + 12))' y='$((middle - 2))' font-family='DejaVu Sans' font-size='12'>${entry##* }</text>"
    echo "<text x='$((left + 12))' y='$((middle + 14))' font-family='DejaVu Sans' font-size='11'" \
      "fill='#00428a'>${entry% *}</text>"
    pictures "${entry##* }" $((left + 136)) $middle
    pictures "${entry##* }" $((left + 396)) $middle
    index=$((index + 1))
  done
  echo "</svg>"
} >"$sheet"

mkdir -p docs/pictures
rsvg-convert --output docs/pictures/icons.png "$sheet"
echo "docs/pictures/icons.png"
