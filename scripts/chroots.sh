# shellcheck shell=bash
# Sourced by the scripts that work in a Debian of another kind than this one: $root is where it is,
# and $architecture what it is for.
# shellcheck disable=SC2034,SC2154 # set or used by the sourcing scripts

# shellcheck source=scripts/common.sh
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"

suite=bookworm
i386_root=$cache_dir/i386-$suite

# Mounts live in a namespace of their own: they are gone with the last process, even a killed one.
# A container that forbids namespaces does without /proc.
namespaces_allowed() { as_root unshare --mount --pid --fork true 2>/dev/null; }

# in_chroot [OPTION] "$root" COMMAND...
in_chroot()
{
    local namespace=() personality=linux64
    [ "$architecture" != i386 ] || personality=linux32
    if namespaces_allowed; then
        namespace=(unshare --mount --pid --fork --kill-child --mount-proc="$root/proc")
    fi
    as_root env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LANG=C.UTF-8 HOME=/tmp \
        DEBIAN_FRONTEND=noninteractive ${CI:+CI="$CI"} \
        "${namespace[@]}" "$personality" chroot "$@"
}

# Prints "URI SUITE COMPONENT" for each Debian archive that this machine's apt uses.
archives()
{
    # shellcheck disable=SC2016 # apt-get expands these
    apt-get indextargets --format '$(REPO_URI) $(RELEASE) $(COMPONENT)' \
        'Created-By: Packages' 'Origin: Debian' "$@"
}

# Only the settings for fetching: hooks of this machine may call programs that are not inside.
apt_settings()
{
    apt-config dump | grep -E '^Acquire::' \
        | grep -vE '^Acquire::(IndexTargets|CompressionTypes|cdrom|Changelogs)'
}

# apt_sources SUITE...
apt_sources()
{
    local name
    for name; do
        archives "Codename: $name"
    done | sed 's/^/deb /' | sort -u
}

# Gives the chroot the view of the network that this machine's apt has.
copy_apt_configuration()
{
    local file files=()
    apt_settings | as_root tee "$root/etc/apt/apt.conf.d/90machine" >/dev/null
    apt_sources "$suite" "$suite-updates" "$suite-security" \
        | as_root tee "$root/etc/apt/sources.list" >/dev/null
    for file in /etc/apt/{auth.conf,auth.conf.d,trusted.gpg,trusted.gpg.d,keyrings} \
        /etc/hosts /etc/resolv.conf /etc/ssl/certs/ca-certificates.crt; do
        [ ! -e "$file" ] || files+=("${file#/}")
    done
    as_root tar -C / --dereference -cf - "${files[@]}" | as_root tar -C "$root" -xf -
}

# A mirror in the middle of its own update may lack one list; whether it matters shows when packages are
# installed.
fetch_package_lists()
{
    copy_apt_configuration
    in_chroot "$root" apt-get update || note 'some package lists could not be fetched, going on without'
}
