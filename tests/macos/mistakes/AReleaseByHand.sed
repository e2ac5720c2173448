# in: AppleScripts.mm
# says: no visible @interface for 'NSAppleScript' declares the selector 'release'
s/^    if (information != nil)$/    [script release];\n&/
