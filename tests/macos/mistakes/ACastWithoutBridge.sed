# in: AppKitOverlay.mm
# says: requires a bridged cast
s/(__bridge NSView\*)/(NSView*)/
