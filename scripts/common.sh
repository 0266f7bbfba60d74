# shellcheck shell=bash
# Sourced by the other scripts: the package lists, and how to install, build, log and fail.

set -euo pipefail
umask 022
export PATH=$PATH:/usr/sbin:/sbin # chroot and debootstrap
export LC_ALL=C.UTF-8 # messages and sort orders are the same on every machine

source_dir=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)
log_dir=$source_dir/build/logs
# shellcheck disable=SC2034 # used by the sourcing scripts
jobs=$(nproc)
cache_dir=${VRN_CACHE_DIR:-${XDG_CACHE_HOME:-$HOME/.cache}/vrnDeviceCore}

# One list per purpose. The tests need tzdata because they also run in foreign time zones.
# shellcheck disable=SC2034
{
    compile_packages=(g++ cmake ninja-build ccache qtbase5-dev qttools5-dev-tools libexpat1-dev
        libarchive-dev zlib1g-dev pkg-config python3-minimal)
    build_packages=("${compile_packages[@]}" mold)
    package_packages=("${compile_packages[@]}" dpkg-dev file)
    # The pages, documents and completions are tried with the programs that read them.
    test_packages=("${build_packages[@]}" git tzdata strace libxml2-utils python3-jsonschema doxygen
        mandoc fish zsh)
    browser_packages=("${test_packages[@]}" chromium poppler-utils)
    translation_packages=(git qttools5-dev-tools)
    format_packages=(git clang-format-14)
    sanitizer_packages=("${test_packages[@]}" clang-14 libclang-rt-14-dev)
    tidy_packages=("${test_packages[@]}" clang-tidy-14 python3)
    benchmark_packages=("${build_packages[@]}" libbenchmark-dev libpugixml-dev libxml2-dev)
    chroot_packages=(debootstrap git util-linux)
    package_check_packages=("${package_packages[@]}" arch-test git lintian mmdebstrap util-linux)
    abi_packages=("${build_packages[@]}" python3 abigail-tools)
    shell_packages=(git shellcheck)
}

note() { printf '%s\n' "$*"; }

die()
{
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

# Prints the comment block at the top of the calling script.
usage() { sed -n '2,/^$/s/^# \{0,1\}//p' "$0"; }

as_root()
{
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        die "'$*' needs root, and sudo is missing"
    fi
}

# Prints those of the packages that are not installed; --admindir=DIR looks into another system.
missing_packages()
{
    local admindir=--admindir=/var/lib/dpkg package
    case ${1-} in --admindir=*) admindir=$1 && shift ;; esac
    for package; do
        # The status is asked for because a removed package still has an entry.
        [ "$(dpkg-query "$admindir" -W -f '${db:Status-Status}' "$package" 2>/dev/null)" = installed ] \
            || printf '%s\n' "$package"
    done
}

# ensure_packages REASON PACKAGE...
ensure_packages()
{
    local reason=$1 missing
    shift
    if ! command -v dpkg-query >/dev/null; then
        note "not a Debian system: $reason needs what Debian calls $*" >&2
        return 0
    fi
    mapfile -t missing < <(missing_packages "$@")
    [ "${#missing[@]}" -gt 0 ] || return 0
    note "installing for $reason: ${missing[*]}"
    locked packages install_missing "$@"
}

install_missing() # PACKAGE...
{
    local missing
    mapfile -t missing < <(missing_packages "$@") # another step may have installed them meanwhile
    [ "${#missing[@]}" -gt 0 ] || return 0
    # One list that cannot be fetched matters only if the installation fails for it.
    logged update as_root apt-get update || true
    logged install as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get install --yes --no-install-recommends "${missing[@]}"
}

# locked NAME COMMAND...: steps that run at once do this one after the other.
locked()
{
    local lock=$source_dir/build/$1.lock status=0
    shift
    mkdir -p "${lock%/*}"
    {
        flock 8
        "$@" 8>&- || status=$?
    } 8>>"$lock"
    return "$status"
}

# Compilers' results are kept from build to build and shared by all build trees, and mold links, where
# there are ccache and mold. CMake reads these variables when it configures a tree for the first time;
# a preset with flags of its own for the linker, as release, is linked by Debian's own one.
use_fast_tools()
{
    if command -v ccache >/dev/null; then
        export CMAKE_CXX_COMPILER_LAUNCHER=${CMAKE_CXX_COMPILER_LAUNCHER-ccache}
        export CCACHE_DIR=${CCACHE_DIR:-$cache_dir/ccache}
        # The same sources in another directory are the same. The precompiled headers of the tests need
        # the sloppiness. What a file includes is taken from the compiler: nothing is preprocessed twice.
        export CCACHE_BASEDIR=$source_dir CCACHE_NOHASHDIR=1 CCACHE_DEPEND=1
        export CCACHE_SLOPPINESS=pch_defines,time_macros CCACHE_MAXSIZE=${CCACHE_MAXSIZE:-3G}
        mkdir -p "$CCACHE_DIR"
    fi
    if command -v mold >/dev/null; then
        export LDFLAGS=${LDFLAGS--fuse-ld=mold}
    fi
}

# build_targets PRESET "TARGET..." [ARGUMENT OF CMAKE]...: configures and builds; all without targets.
build_targets()
{
    local preset=$1 targets
    read -ra targets <<<"$2"
    use_fast_tools
    locked "$preset" configure_and_build "$preset" "${targets[*]:+--target ${targets[*]}}" "${@:3}"
}

configure_and_build() # PRESET OPTIONS [ARGUMENT OF CMAKE]...
{
    local options
    read -ra options <<<"$2"
    cmake --preset "$1" "${@:3}" \
        && cmake --build "$source_dir/build/$1" --parallel "$jobs" "${options[@]}"
}

# logged NAME COMMAND...: keeps the output in build/logs/NAME.log and shows it only on failure.
logged()
{
    local log=$log_dir/$1.log status=0
    shift
    mkdir -p "$log_dir"
    ("$@") >"$log" 2>&1 </dev/null || status=$? # a subshell, for a command may be a function that dies
    [ "$status" -eq 0 ] && return
    note "failed: $*"
    tail -n 300 "$log"
    note "(exit code $status; the whole log is in ${log#"$source_dir"/})"
    return "$status"
}

# The time of the last commit, for SOURCE_DATE_EPOCH.
commit_time() { git -c safe.directory="$source_dir" -C "$source_dir" log -1 --format=%ct; }

# work_tree_files PATTERN...: the files as a commit of everything would have them, each ended by NUL.
# safe.directory: a CI checkout often belongs to another user than the one who builds.
work_tree_files()
{
    local file
    git -c safe.directory="$source_dir" -C "$source_dir" \
        ls-files -z --cached --others --exclude-standard -- "$@" \
        | while IFS= read -r -d '' file; do
            if [ -e "$source_dir/$file" ] || [ -L "$source_dir/$file" ]; then
                printf '%s\0' "$file"
            fi
        done
}
