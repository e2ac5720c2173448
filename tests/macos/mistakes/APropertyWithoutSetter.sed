# in: AppKitOverlay.mm
# says: no setter method 'setIsMovable:'
s/window\.movable = /window.isMovable = /
