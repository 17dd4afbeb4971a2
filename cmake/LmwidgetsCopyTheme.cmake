# Script behind lmwidgets_deploy_theme: cmake -DSOURCE=... -DDESTINATION=... -P this file
file(LOCK "${DESTINATION}.lock" GUARD PROCESS TIMEOUT 60)
file(COPY "${SOURCE}/" DESTINATION "${DESTINATION}"
    FILES_MATCHING
    PATTERN "*.png"
    PATTERN "*.gif"
    PATTERN "*.qss"
    PATTERN "source" EXCLUDE
)
