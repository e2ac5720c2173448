# in: AppKitScreens.mm
# says: property 'mainScreen' is a class property
s/= NSScreen\.mainScreen/= [[NSScreen alloc] init].mainScreen/
