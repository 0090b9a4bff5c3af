# SPDX-License-Identifier: GPL-3.0-or-later
# Where the About box leads to. A maker sets these when building: cmake -DKELVRA_HOME_PAGE=...
# The defaults are in a domain that leads nowhere.
set(KELVRA_HOME_PAGE "https://www.kelvra.example/" CACHE STRING "The maker's home page")
set(KELVRA_APPLICATION_NOTES "https://www.kelvra.example/application-notes"
    CACHE STRING "The maker's page of application notes")
set(KELVRA_SUPPORT_TOOL "https://www.kelvra.example/support-tool"
    CACHE STRING "The page from which the support tool is downloaded")
set(KELVRA_SUPPORT_MAILBOX "support@kelvra.example" CACHE STRING "The mailbox of the maker's support")
