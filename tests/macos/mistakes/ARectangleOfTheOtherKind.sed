# in: AppKitScreens.mm
# says: no viable conversion from 'NSRect'
s/\.frame = plainRect(screen\.frame)/.frame = screen.frame/
