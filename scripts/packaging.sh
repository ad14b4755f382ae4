# The zip and the installer of a folder with the program. Sourced by scripts/package and by the tests
# of what it makes, behind lib.sh. The same files give the same bytes, wherever and whenever.
# shellcheck shell=bash

packaging_packages=(zip nsis)
packing=$build/package # where the files are made ready

# The time that each file in a package has, that of the commit: in whole minutes, because a zip counts
# in steps of two seconds.
package_time() {
  local time=${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct)}
  echo $((time / 60 * 60))
}

# A copy for a package: rights and times do not depend on who made the files, and when.
copy_for_package() { # from, to
  rm -rf "$2"
  mkdir -p "$2"
  cp -r "$1/." "$2"
  find "$2" -type d -exec chmod 755 {} +
  find "$2" -type f -exec chmod 644 {} +
  find "$2" -exec touch -d "@$(package_time)" {} +
}

# All files below the current folder, in an order that depends on no language.
files_in_order() { find . -type f -printf '%P\n' | LC_ALL=C sort; }

make_zip() { # copy, zip
  rm -f "$2"
  (cd "${1%/*}" && find "${1##*/}" -type f | LC_ALL=C sort | TZ=UTC zip -X -D -q -9 "$2" -@)
}

# What the installer puts and takes, a line for each file with its folder, name and size; and the
# folders, the innermost first, which go if nothing is left in them.
list_for_installer() { # copy, folder of the lists
  local path folder
  mkdir -p "$2"
  (cd "$1" && files_in_order) | while IFS= read -r path; do
    folder=${path%"${path##*/}"}
    folder=${folder:+/${folder%/}}
    printf '!insertmacro ${EACH} "%s" "%s" %d\n' "${folder//\//\\}" "${path##*/}" "$(stat -c %s "$1/$path")"
  done >"$2/files.nsh"
  (cd "$1" && find . -type d -printf '%P\n' | LC_ALL=C sort -r) | while IFS= read -r path; do
    printf 'RMDir "$INSTDIR%s"\n' "${path:+\\${path//\//\\}}"
  done >"$2/folders.nsh"
}

# A time as Windows tells it: steps of 100 ns since 1601, in two halves.
windows_time() { # seconds since 1970
  local steps=$((($1 + 11644473600) * 10000000))
  echo $((steps >> 32)) $((steps & 0xffffffff))
}

make_installer() { # copy, version, installer
  local lists=$1.lists high low
  list_for_installer "$1" "$lists"
  read -r high low <<<"$(windows_time "$(package_time)")"
  SOURCE_DATE_EPOCH=$(package_time) makensis -NOCONFIG -WX -V2 -DROOT="$root" -DSTAGE="$1" -DLISTS="$lists" \
    -DVERSION="$2" -DOUTPUT="$3" -DSIZE="$(du -sk --apparent-size "$1" | cut -f1)" \
    -DTIME_HIGH="$high" -DTIME_LOW="$low" "$root/resources/installer/installer.nsi"
}

# Both, from the program in a folder, with their sums; none of an earlier package is left.
make_package() { # program, version, folder
  local name=KorvenTally-$2 copy=$packing/KorvenTally-$2
  mkdir -p "$3"
  rm -f "$3"/KorvenTally-*.zip "$3"/KorvenTally-*-setup.exe "$3/SHA256SUMS"
  copy_for_package "$1" "$copy" && make_zip "$copy" "$3/$name.zip" &&
    make_installer "$copy" "$2" "$3/$name-setup.exe" &&
    (cd "$3" && sha256sum "$name.zip" "$name-setup.exe" >SHA256SUMS)
}
