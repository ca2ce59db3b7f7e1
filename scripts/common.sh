# What ./run, ./test and the scripts share: missing packages, a display of one's own, and Wine.
# To be sourced, from bash with `set -euo pipefail`.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# What building for Windows and running that here takes. The last ones Wine only recommends; without them
# texts have no smooth edges and dialogs not the sizes they have on Windows.
windows_packages=(cmake ninja-build g++-mingw-w64-x86-64-posix mingw-w64-tools googletest
  wine wine64 fonts-wine libxrender1 libxcursor1 libxi6 libxfixes3 libxrandr2 libxinerama1 libxcomposite1)

say() { printf '\n== %s\n' "$*"; }

# Installs those of the Debian packages that are not there yet.
install_missing() {
  local package missing=() as_root=()
  if ! command -v dpkg-query >/dev/null; then
    echo "Not a Debian system: taking for granted that these are installed: $*"
    return
  fi
  for package in "$@"; do
    [[ $(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null) == installed ]] || missing+=("$package")
  done
  if ((${#missing[@]} == 0)); then return; fi
  say "Installing ${missing[*]}"
  if ((EUID != 0)); then
    if ! command -v sudo >/dev/null; then
      echo "Please install as root: apt-get install ${missing[*]}" >&2
      return 1
    fi
    as_root=(sudo)
  fi
  "${as_root[@]}" apt-get update -qq </dev/null
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" </dev/null
}

# Starts a virtual display of the given size and depth on a free number, and sets DISPLAY.
start_display() {
  local number fifo
  fifo=$(mktemp -u)
  mkfifo "$fifo"
  Xvfb -displayfd 3 -screen 0 "$1" -nolisten tcp -noreset 3>"$fifo" >/dev/null 2>&1 </dev/null &
  display_process=$!
  # Xvfb writes its number once it takes clients.
  if ! read -r -t 30 number <"$fifo"; then
    rm -f "$fifo"
    echo "The virtual display did not start." >&2
    return 1
  fi
  rm -f "$fifo"
  export DISPLAY=:$number
}

stop_display() {
  if [[ -n ${display_process:-} ]]; then
    kill "$display_process" 2>/dev/null || true
    wait "$display_process" 2>/dev/null || true
    display_process=
  fi
}

# Finds Wine and makes the prefix (Wine's idea of a machine) when it is not there. Needs a display.
start_wine() {
  local candidate
  export WINEPREFIX=$1
  # No debugging output, no offer to fetch parts that nobody uses, no menu entries on the host.
  export WINEDEBUG=${WINEDEBUG:--all} WINEDLLOVERRIDES="mscoree=;mshtml=;winemenubuilder.exe=" WINEARCH=win64
  wine=
  for candidate in wine64 /usr/lib/wine/wine64 wine; do
    if wine=$(command -v "$candidate"); then break; fi
  done
  if [[ -z $wine ]]; then
    echo "Wine is missing." >&2
    return 1
  fi
  for candidate in wineserver /usr/lib/wine/wineserver /usr/lib/wine/wineserver64; do
    if wineserver=$(command -v "$candidate"); then break; fi
  done
  if [[ ! -e $WINEPREFIX/.complete ]]; then
    rm -rf "$WINEPREFIX"
    mkdir -p "$WINEPREFIX"
    timeout -k 5 180 "$wine" wineboot -i </dev/null >/dev/null 2>&1
    "$wineserver" -w
    # Debian's Wine does not look where its fonts are installed: without them dialogs have odd sizes.
    ln -sf /usr/share/wine/fonts/* "$WINEPREFIX/drive_c/windows/Fonts/"
    touch "$WINEPREFIX/.complete"
  fi
  # The size of texts (96 is 100 %, 144 is 150 %), and who frames and activates windows: on a display of our own
  # nobody but Wine, which would otherwise wait two seconds for an answer whenever a window closes.
  local dpi=${FILER_DPI:-96} managed=Y
  if [[ -n ${display_process:-} ]]; then managed=N; fi
  if [[ $(cat "$WINEPREFIX/.settings" 2>/dev/null) != "$dpi $managed" ]]; then
    "$wine" reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d "$dpi" /f </dev/null >/dev/null
    "$wine" reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d "$managed" /f </dev/null >/dev/null
    "$wineserver" -k || true
    "$wineserver" -w
    echo "$dpi $managed" >"$WINEPREFIX/.settings"
  fi
}

# Writes dialogs in a font whose letters are those that users see: in Wine's stand-in for Tahoma, the J is a bar. For
# prefixes in which pictures are made, after start_wine.
use_picture_font() {
  local name fonts=/usr/share/fonts/truetype/liberation
  local key='HKLM\Software\Microsoft\Windows NT\CurrentVersion\FontSubstitutes'
  if [[ -e $WINEPREFIX/.picture-font ]]; then return; fi
  install_missing fonts-liberation
  ln -sf "$fonts"/LiberationSans-*.ttf "$WINEPREFIX/drive_c/windows/Fonts/"
  for name in 'MS Shell Dlg' 'MS Shell Dlg 2' Tahoma; do
    "$wine" reg add "$key" /v "$name" /d 'Liberation Sans' /f </dev/null >/dev/null
  done
  "$wineserver" -k || true
  "$wineserver" -w
  touch "$WINEPREFIX/.picture-font"
}

# Ends every program in the prefix, and its server.
stop_wine() {
  if [[ -n ${wineserver:-} ]]; then
    "$wineserver" -k 2>/dev/null || true
    "$wineserver" -w 2>/dev/null || true
  fi
}

# Waits up to a minute for the window that shows the document of the given name and prints the window's number;
# gives up when the process with the given number, if any, ends before.
wait_for_document() {
  local caption tries found
  caption="^Larkspur Filer - (.*\\\\)?$(sed 's/[][\.*^$()+?{|}]/\\&/g' <<<"$1")( \\(read only\\))?( \\*)?$"
  for ((tries = 0; tries < 300; ++tries)); do
    found=$(xdotool search --onlyvisible --name "$caption" 2>/dev/null | head -n 1) || true
    if [[ -n $found ]]; then
      echo "$found"
      return
    fi
    if [[ -n ${2:-} ]] && ! kill -0 "$2" 2>/dev/null; then break; fi
    sleep 0.2
  done
  return 1
}
