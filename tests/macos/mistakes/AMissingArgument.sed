# in: AppKitOverlay.mm
# says: declares the selector 'setFrame:'
s/ display:YES\]/]/
