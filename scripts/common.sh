# shellcheck shell=bash disable=SC2034
# Shared by the scripts of this folder: words to the user, rights, places.

say() { printf '%s\n' "ravo: $*"; }
die() { printf '%s\n' "ravo: $*" >&2; exit 2; }

# Runs a command with the rights to install: as it is for root, through sudo otherwise.
as_root() {
  if [ "$(id -u)" = 0 ]; then "$@"
  elif command -v sudo >/dev/null; then sudo "$@"
  else die "this needs root or sudo: $*"
  fi
}

# A cron job or a container may have no HOME; the account's own folder is meant then.
if [ -z "${HOME:-}" ]; then
  HOME=$(getent passwd "$(id -u)" | cut -d: -f6)
  export HOME="${HOME:-/tmp}"
fi

ravo_cache="${RAVO_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/ravo}"
wine32_root="$ravo_cache/wine32-bookworm"
jobs=${RAVO_JOBS:-$(nproc 2>/dev/null || echo 2)}

# The distribution's Python before whatever shim the path has.
python=/usr/bin/python3
[ -x "$python" ] || python=python3

# The package mirror that a Debian machine already uses; empty on any other.
apt-mirror-of-this-machine() {
  grep -qx 'ID=debian' /etc/os-release || return 0
  local sources
  sources=$(cat /etc/apt/sources.list /etc/apt/sources.list.d/*.list /etc/apt/sources.list.d/*.sources 2>/dev/null || true)
  sed -nE 's/^(deb (\[[^]]*\] )?|URIs: )(https?:[^ ]+).*/\3/p' <<<"$sources" | grep -v security | head -n 1 || true
}

# fetch-source PACKAGE: the archives of the distribution's source package, into the current folder. Uses the mirror of
# this machine, without changing its package lists.
fetch-source() {
  local place="$ravo_cache/apt"
  local options=(-o Dir::Etc::sourcelist=/dev/null -o "Dir::Etc::sourceparts=$place/parts"
    -o "Dir::State::lists=$place/lists" -o APT::Sandbox::User=root)
  if [ -z "${sources_are_listed:-}" ]; then
    mkdir -p "$place/lists/partial" "$place/parts"
    printf 'deb-src %s bookworm main\n' "$(apt-mirror-of-this-machine)" >"$place/parts/source.list"
    as_root apt-get update -qq "${options[@]}"
    sources_are_listed=yes
  fi
  as_root apt-get source -qq --download-only "${options[@]}" "$1" >/dev/null
}
