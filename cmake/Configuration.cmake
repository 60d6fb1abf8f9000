# Addresses that the program shows and opens. A distributor sets his own; the defaults are reserved
# example domains, so that an unconfigured build writes to nobody.

set(LUMENVIA_HOME_URL "http://www.lumenvia.example/lumenvia" CACHE STRING "The program's home page")
set(LUMENVIA_SUPPORT_ADDRESS "support@lumenvia.example" CACHE STRING "Mail address for support")
set(LUMENVIA_UPDATE_ADDRESS "updates@lumenvia.example" CACHE STRING "Mail address for update notices")
set(LUMENVIA_DEFAULT_MAIL_ADDRESS "friend@lumenvia.example" CACHE STRING
    "First entry of the list of mail addresses")

configure_file("${PROJECT_SOURCE_DIR}/cmake/Configuration.h.in"
    "${PROJECT_BINARY_DIR}/generated/Configuration.h" @ONLY)
