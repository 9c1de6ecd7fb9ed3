# A build in a fresh root of Debian, from the sources as an archive has them. Sourced by the scripts that
# set `platform`, the release `suite`, and `inside`, the script of this folder that is run there.

source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

readonly here=$work_dir/$platform
readonly root=$here/root

# OX_KEEP_ROOT=1 goes on in the root of an earlier run.
make_root() {
    [ "${OX_KEEP_ROOT:-0}" = 0 ] || [ ! -d "$root/usr" ] || return 0
    rm -rf "$root"
    mkdir -p "$here" "$work_dir/packages"
    debootstrap --variant=minbase --cache-dir="$work_dir/packages" "$suite" "$root" \
        "${OX_DEBIAN_MIRROR:-$(packaging/archive_address.sh)}" >"$here/debootstrap.log"
    cp /etc/resolv.conf "$root/etc/resolv.conf"
}

# `in_root SCRIPT`: runs a script of this folder inside, in mount and process spaces of its own, which
# take all mounts and processes with them when they end.
in_root() {
    unshare --mount --pid --fork chroot "$root" /bin/bash -c \
        "mount -t proc proc /proc && mount -t tmpfs tmpfs /dev/shm && cd /src && \
         apt-get update -qq && bash packaging/platforms/$1"
}

need_root
need debootstrap debootstrap
need unshare util-linux
make_root
copy_sources "$root/src"
in_root "$inside" 2>&1 | tee "$here/run.log"
print_row "$(. "$root/etc/os-release" && echo "$PRETTY_NAME"), $(chroot "$root" dpkg --print-architecture), GCC $(chroot "$root" g++ -dumpversion)" \
    "$(count_tests "$root/src/build/tests.log")" "$(count_hashes "$root/src/build/hashes.txt")"
