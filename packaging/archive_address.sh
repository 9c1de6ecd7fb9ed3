#!/usr/bin/env bash
# Prints the address of the archive that this machine installs its distribution's packages from, so that
# sources and fresh roots come from where the machine's owner chose. Nothing where there is none.
apt-get indextargets --format '$(ORIGIN) $(REPO_URI)' 'Created-By: Packages' |
    sed -nE 's/^(Debian|Ubuntu) //p' | sed -n 1p
