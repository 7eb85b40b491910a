#!/bin/sh
# Renders the SVG sources of this folder into the pictures that the resource scripts include.
# Needs rsvg-convert (librsvg2-bin), icotool (icoutils), convert (imagemagick), optipng, pngquant and zopflipng
# (zopfli).
set -eu
cd "$(dirname "$0")"
component=../src/resources/art
host=../host/app/art
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$component" "$host"

# page NUMBER SUFFIX WIDTH HEIGHT COLOURS: no dithering, so the rows of the gradient stay even and pack well.
page() {
    rsvg-convert -w "$3" -h "$4" "pages/page$1.svg" -o "$work/page.png"
    convert "$work/page.png" -alpha off "PNG24:$work/opaque.png"
    pngquant --nofs --speed 1 --strip --force -o "$work/page.png" "$5" "$work/opaque.png"
    zopflipng -y "$work/page.png" "$component/page$1$2.png" >/dev/null
}

# square SOURCE SIZE: one picture of an icon. It stays red, green, blue and alpha (-nx): icons of another
# kind are shown on black.
square() {
    rsvg-convert -w "$2" -h "$2" "$1" -o "$work/$2.png"
    optipng -quiet -o5 -nx -strip all "$work/$2.png"
}

# icon TARGET PLAIN... -- PACKED...: plain sizes become bitmaps, packed sizes stay PNG.
icon() {
    target=$1
    shift
    flag=
    set -- "$@" end
    while [ "$1" != end ]; do
        case $1 in
            --) flag=--raw= ;;
            *) set -- "$@" "$flag$work/$1.png" ;;
        esac
        shift
    done
    shift
    icotool -c -b 32 -o "$target" "$@"
}

for number in 162 163 164 165 166 167; do
    colours=48
    [ "$number" != 163 ] || colours=64 # so that the small dot in the star is round
    page "$number" "" 135 374 "$colours"
    page "$number" _150 203 561 48
    page "$number" _200 270 748 48
done

# 32 and 64 pixels are whole multiples of the 16 pixel drawing, 48 of the 24 pixel one.
for source in icons/16/*.svg; do
    name=$(basename "$source" .svg)
    square "icons/16/$name.svg" 16
    square "icons/20/$name.svg" 20
    square "icons/24/$name.svg" 24
    square "icons/16/$name.svg" 32
    if [ "$name" = recovery_file ]; then
        square "icons/24/$name.svg" 48
        icon "$component/$name.ico" -- 16 20 24 32 48
    else
        icon "$component/$name.ico" -- 16 20 24 32
    fi
done

for size in 32 48 64; do square icons/32/pointing_hand.svg "$size"; done
icon "$component/pointing_hand.ico" -- 32 48 64

for size in 16 20 24; do square host/tovarin_host_small.svg "$size"; done
for size in 32 48 64 128 256; do square host/tovarin_host.svg "$size"; done
icon "$host/tovarin_host.ico" 16 20 24 32 -- 48 64 128 256
