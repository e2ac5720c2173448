# in: AppKitScreens.mm
# says: property 'auxiliaryTopRightAre' not found
s/screen\.auxiliaryTopRightArea/screen.auxiliaryTopRightAre/
