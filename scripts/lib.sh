# What the scripts share; sourced by them, never run. Everything they make is below build/ and dist/.
# shellcheck shell=bash
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=$root/build
installation=$root/dist/KorvenTally
logs=$build/logs
mkdir -p "$logs"
cd "$root"

# Sanitizers and fuzzers, and what tells the lines that they speak of.
sanitizer_packages=(clang libclang-rt-14-dev llvm)
build_packages=(cmake ninja-build g++ g++-mingw-w64-x86-64-posix googletest)
# Wine draws buttons and arrows with fonts that its own package only recommends.
desktop_packages=(wine wine64 fonts-wine fonts-liberation xvfb imagemagick)
browser_packages=(chromium chromium-driver python3-selenium)
guide_packages=(pandoc)
# The program as a user gets it has the guide beside it.
program_packages=("${build_packages[@]}" "${guide_packages[@]}")

fail() {
  printf '%s\n' "$*" >&2
  exit 1
}

# Runs a command as one stage: a line that says what happens and how long it took, and when it
# fails the end of its log, where the log is, and the end of the script.
stage() { # what happens, log name, command...
  local what=$1 log=$logs/$2.log began=$SECONDS
  shift 2
  printf '%-62s ' "$what ..."
  if ("$@") >"$log" 2>&1; then
    printf '%4d s\n' $((SECONDS - began))
  else
    printf 'FAILED\n'
    tail -n 25 "$log" >&2
    fail "The whole log: ${log#"$root"/}"
  fi
}

as_root() {
  if [ "$(id -u)" = 0 ]; then "$@"; else sudo "$@"; fi
}

install_packages() {
  as_root apt-get update
  as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "$@"
}

# Installs what the machine lacks, and asks for nothing when it lacks nothing.
need_packages() {
  local package missing=()
  for package in "$@"; do
    [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" = installed ] ||
      missing+=("$package")
  done
  [ ${#missing[@]} = 0 ] || stage "Installing ${missing[*]}" install install_packages "${missing[@]}"
}

# Builds a preset's targets. Once it is configured, ninja itself sees when that has to be done again,
# but for a change of the presets.
build_preset() { # preset, targets...
  local folder=$build/$1
  [ "$folder/build.ninja" -nt CMakePresets.json ] || cmake --fresh --preset "$1"
  ninja -C "$folder" "${@:2}"
}

cross_build() { build_preset windows "$@"; }

version() { sed -n 's/^project(KorvenTally VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt; }

# A page for a browser. It has the version that it tells of, and a way back to the guide.
render_page() { # source, page, folder of the guide as the page names it
  pandoc -f gfm-smart -t html5 --wrap=none --no-highlight --template resources/guide/template.html \
    --metadata "pagetitle=$(sed -n '1s/^# //p' "$1")" --metadata "version=$(version)" \
    --metadata "guide=$3" "$1" >"$2"
}

# The pages that the guide leads to, all in one folder: links from one to another lose the folders
# that the sources are in.
render_guide() { # folder
  local page name
  rm -rf "$1"
  mkdir -p "$1"
  cp -r docs/guide/images "$1/images"
  for page in docs/guide/*.md docs/engine.md docs/import.md CHANGELOG.md; do
    name=$1/$(basename "$page" .md).html
    render_page "$page" "$name" . || return
    sed -i -E 's|href="([^":]*/)?([A-Za-z-]+)\.md|href="\2.html|g' "$name"
  done
}

# All pages of the program: the guide, the one to begin with, and those of the samples.
render_pages() { # folder of the program
  local page
  render_guide "$1/guide" || return
  mkdir -p "$1/samples/dispersion"
  render_page docs/start.md "$1/README.html" guide || return
  render_page samples/README.md "$1/samples/README.html" ../guide || return
  render_page samples/dispersion/README.md "$1/samples/dispersion/README.html" ../../guide || return
  for page in "$1"/README.html "$1"/samples/README.html "$1"/samples/dispersion/README.html; do
    sed -i -E 's|href="(\.\./)*([^":]*)\.md|href="\2.html|g' "$page"
  done
}

# The program as a user gets it, and nothing that an older build has left there.
install_program() { # folder
  rm -rf "$1"
  cmake --install "$build/windows" --prefix "$1" &&
    render_pages "$1"
}

build_program() {
  stage "Cross-building the wizard and the engine for Windows" build-windows \
    cross_build KorvenTallyWizard korventally
  stage "Putting them into dist/KorvenTally/" install install_program "$installation"
}

# A folder as a program under Wine names it.
windows_path() {
  local path=Z:$1
  printf '%s' "${path//\//\\}"
}

# However a script ends: nothing that it started stays behind.
own_prefix=
display_pid=
leave() {
  if [ -n "$own_prefix" ]; then wineserver -k 2>/dev/null || true; fi
  if [ -n "$display_pid" ]; then kill "$display_pid" 2>/dev/null || true; fi
  local job
  for job in $(jobs -p); do # a group of processes, or one
    kill -- "-$job" 2>/dev/null || kill "$job" 2>/dev/null || true
  done
  own_prefix=
  display_pid=
  last_words
}
last_words() { :; } # for a script that has something to say at its very end
trap leave EXIT
trap 'exit 130' INT TERM

# A display of the script's own, so that it works without one and takes nobody's mouse away.
start_display() { # width x height
  local file=$build/display.$$ tries=0
  Xvfb -displayfd 3 -screen 0 "$1x24" -nolisten tcp 3>"$file" >"$logs/display.log" 2>&1 &
  display_pid=$!
  until [ -s "$file" ]; do
    tries=$((tries + 1))
    [ $tries -lt 100 ] || fail "The virtual display did not start: see ${logs#"$root"/}/display.log"
    sleep 0.1
  done
  DISPLAY=:$(cat "$file")
  export DISPLAY
  unset WAYLAND_DISPLAY
  rm -f "$file"
}

# Programs that drive windows get a desktop of Wine's own, which draws title bars without a window
# manager. Everything else opens its windows on the display itself; without a manager to wait for,
# each of the contract's many windows would otherwise take two seconds.
wine_settings() { # width x height, dots per inch
  local dpi driver
  dpi=$(printf '%08x' "$2")
  printf 'REGEDIT4\n'
  for driver in e2e_tests demo_driver start_timer window_bench; do
    printf '\n[HKEY_CURRENT_USER\\Software\\Wine\\AppDefaults\\%s.exe\\Explorer]\n' $driver
    printf '"Desktop"="driven"\n'
  done
  cat <<REGISTRY

[HKEY_CURRENT_USER\\Software\\Wine\\AppDefaults\\contract_tests.exe\\X11 Driver]
"Managed"="N"

[HKEY_CURRENT_USER\\Software\\Wine\\Explorer\\Desktops]
"driven"="$1"

[HKEY_CURRENT_USER\\Software\\Wine\\Fonts]
"LogPixels"=dword:$dpi

[HKEY_CURRENT_USER\\Control Panel\\Desktop]
"LogPixels"=dword:$dpi

[HKEY_CURRENT_USER\\Software\\Wine\\Fonts\\Replacements]
"Arial"="Liberation Sans"
REGISTRY
}

make_prefix() { # width x height, dots per inch
  local settings=$WINEPREFIX/settings.reg
  [ -d "$WINEPREFIX/drive_c/windows" ] || timeout 240 wineboot --init
  # Debian's Wine does not look where Debian puts its fonts, the ones for symbols among them.
  cp /usr/share/wine/fonts/*.ttf "$WINEPREFIX/drive_c/windows/Fonts/"
  [ "$(cat "$settings" 2>/dev/null)" != "$(wine_settings "$@")" ] || return 0
  wine_settings "$@" >"$settings.new"
  timeout 60 wine regedit /S "$(windows_path "$settings.new")"
  # The registry counts as written, and a desktop as resized, once the server has ended.
  timeout 60 wineserver -k || true
  timeout 60 wineserver -w
  mv "$settings.new" "$settings"
}

# A Wine prefix below build/, one for each script, so that they may run at the same time and the
# user's own is never touched.
use_prefix() { # name, width x height, dots per inch
  export WINEPREFIX=$build/wine/$1 WINEARCH=win64 WINEDEBUG=-all
  # No Mono, no browser, no debugger that keeps a crashed program waiting, no menu entries.
  export WINEDLLOVERRIDES="mscoree,mshtml=;winedbg.exe,winemenubuilder.exe=d"
  mkdir -p "$WINEPREFIX"
  own_prefix=$WINEPREFIX
  stage "Preparing Wine in ${WINEPREFIX#"$root"/}" "wine-$1" make_prefix "${@:2}"
  # On a display of the script's own nobody else starts and ends programs, and the server stays for
  # the next one: one that is about to end resets the connections of those that come too late.
  [ -z "$display_pid" ] || wineserver -p || true
}

# A copy of the program beside a copy of the sample study, which it offers by its configuration
# file: the study's folder receives the files of a run.
prepare_copy() { # folder
  rm -rf "$1"
  mkdir -p "$1"
  cp -r "$installation" "$1/KorvenTally"
  cp -r "$root/samples" "$1/study"
  printf 'WorkingDirectory = %s\r\n' "$(windows_path "$1/study")" >"$1/KorvenTally/Movrix.cfg"
}

# A picture of a part of the screen; it appears under its name only when it is whole.
take_picture() { # folder, name, geometry
  import -window root -crop "$3" +repage "$1/$2.part.png"
  mv "$1/$2.part.png" "$1/$2.png"
}

# Has the wizard of such a copy driven by mouse and keyboard. The driver says what it does, asks for
# pictures and waits for them. The result is the driver's.
drive_copy() { # folder, what to do: demo, gallery or model; how the wizard names the folder
  local line name geometry drives=${3:-Z:$1}
  while IFS= read -r line; do
    line=${line%$'\r'}
    read -r _ name geometry <<<"$line"
    case $line in
      'picture '*) take_picture "$1" "$name" "$geometry" ;;
      'driver-ended '*) return "$name" ;;
      *) printf '  %s\n' "$line" ;;
    esac
  done < <(
    # The pipe outlives the driver, because Wine's own processes hold it too.
    timeout 180 wine "$build/windows/driver/demo_driver.exe" "$2" "$drives" \
      2>"$logs/demo-driver.log" && ended=0 || ended=$?
    echo "driver-ended $ended"
  )
  return 1
}
