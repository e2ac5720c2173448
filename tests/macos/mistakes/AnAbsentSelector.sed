# in: AppKitOverlay.mm
# says: no visible @interface for 'NSWindow' declares the selector 'orderFront'
s/\[window_ orderFrontRegardless\]/[window_ orderFront]/
